// The recipe screen on a desktop with a dark theme: every caption, the
// title strip and the directions counter stay readable, in every mode.
#include "contrast_check.h"
#include "form5_fixture.h"

#include <QApplication>

namespace {

class Form5DarkDesktopTest : public Form5Test {
protected:
    Form5DarkDesktopTest() : before_(QApplication::palette()) { QApplication::setPalette(DarkDesktopPalette()); }
    ~Form5DarkDesktopTest() override { QApplication::setPalette(before_); }

private:
    QPalette before_;
};

} // namespace

TEST_F(Form5DarkDesktopTest, EveryTextCanBeReadInEveryMode)
{
    auto form = open();
    form->resize(960, 700);
    ShowActive(*form);
    EXPECT_EQ(UnreadableTexts(form.get()), QStringList()) << "idle";
    act(*form, "mCreate")->trigger();
    EXPECT_EQ(UnreadableTexts(form.get()), QStringList()) << "create";
    startRecipe(*form, "Stews", "Beef Stew");
    typeRow(*form, 0, "2", "lbs.", "beef");
    act(*form, "mSave")->trigger();
    fields(*form)->pickList()->hidePopup();
    pick(*form, "Beef Stew");
    EXPECT_EQ(UnreadableTexts(form.get()), QStringList()) << "view";
    act(*form, "mModify")->trigger();
    EXPECT_EQ(UnreadableTexts(form.get()), QStringList()) << "modify";
}
