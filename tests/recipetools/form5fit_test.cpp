// The recipe screen in a window of 800 by 600: nothing cut off, squeezed or
// overlapping, in every mode and with every panel open.
#include "fit_check.h"
#include "form5_fixture.h"

TEST_F(Form5Test, FitsAWindowOf800By600)
{
    auto form = open();
    form->resize(800, 600);
    ShowActive(*form);
    EXPECT_EQ(FitProblems(form.get()), QStringList());
}
