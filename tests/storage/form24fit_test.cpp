// The storage screen in a window of 800 by 600 and in the 960 by 540 of a
// 200 % screen: nothing cut off, squeezed or overlapping, in the All view,
// in a category with its pie, and with every panel open.
#include "print/screens/printoptionspanel.h"
#include "shell/screens/backgroundselector.h"
#include "fit_check.h"
#include "form24_fixture.h"
#include "storage/screens/percentpanel.h"

namespace {

class Form24FitTest : public Form24Test {
protected:
    std::unique_ptr<Form24> openSmall(StorageKind kind)
    {
        auto form = open(kind);
        form->resize(800, 600);
        form->show();
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        return form;
    }

    // One line per problem, empty when the screen fits.
    static std::string problems(Form24& form)
    {
        QApplication::processEvents();
        return FitProblemsAtBothSizes(&form);
    }
};

} // namespace

TEST_F(Form24FitTest, EveryKindFitsInTheAllViewAndInEachCategory)
{
    for (const StorageKind kind : kStorageKinds) {
        auto form = openSmall(kind);
        EXPECT_EQ(form->size(), QSize(800, 600));
        EXPECT_EQ(problems(*form), "") << int(kind);
        for (int button = 1; button < kCategoryButtons; ++button) {
            if (!form->categoryButton(button)->isVisible())
                continue;
            form->categoryButton(button)->click();
            EXPECT_EQ(problems(*form), "") << int(kind) << " category " << button;
        }
    }
}

TEST_F(Form24FitTest, ThePercentPanelFits)
{
    auto form = openSmall(StorageKind::Basic);
    act(*form, "mRollup")->trigger();
    EXPECT_EQ(problems(*form), "");
    form->percentPanel()->turnBars();
    EXPECT_EQ(problems(*form), "");
}

TEST_F(Form24FitTest, ThePrintPanelFits)
{
    auto form = openSmall(StorageKind::Emergency);
    act(*form, "mPrint")->trigger();
    EXPECT_EQ(problems(*form), "");
}

TEST_F(Form24FitTest, TheExportPanelFits)
{
    auto form = openSmall(StorageKind::Additional);
    act(*form, "mExport")->trigger();
    EXPECT_EQ(problems(*form), "");
}

TEST_F(Form24FitTest, TheGridBackgroundSelectorAndTheCalendarFit)
{
    auto form = openSmall(StorageKind::Basic);
    act(*form, "mGridBackground")->trigger();
    ASSERT_TRUE(form->gridBackgroundSelector()->isOpen());
    EXPECT_EQ(problems(*form), "");
    form->pressEscape();
    moveTo(*form, 59, 5);
    ASSERT_TRUE(form->calendar()->isOpen());
    EXPECT_EQ(problems(*form), "");
}
