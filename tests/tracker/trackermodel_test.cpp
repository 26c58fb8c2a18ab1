// The tracker's working state and what its commands write.
#include "tracker/logic/trackermodel.h"

#include "common/quotedlinefile.h"
#include "tracker/logic/trackerstates.h"
#include "tracker_fixture.h"

#include <QDir>
#include <QFile>

namespace {

class TrackerModelTest : public TrackerFolderTest {
protected:
    TrackerModel loadedPat()
    {
        folder.copyIn(TestDataFile(QStringLiteral("Pat Doe.Fil")));
        folder.writeBytes(QString::fromLatin1(kIndividualListFile), QuotedLines({"Pat Doe"}));
        TrackerModel model;
        EXPECT_TRUE(model.readList());
        model.load(model.individuals().first());
        return model;
    }
};

} // namespace

TEST_F(TrackerModelTest, LoadWorksTheColumnsOutAndClearsChanged)
{
    TrackerModel model = loadedPat();
    EXPECT_EQ(model.state(), TrackerState::Loaded);
    EXPECT_EQ(model.name(), "Pat Doe");
    EXPECT_EQ(model.rows().size(), 3);
    EXPECT_EQ(model.rows()[0].change, "N/A");
    EXPECT_EQ(model.rows()[2].change, "207") << "below a blank row, with no change worked out before";
    EXPECT_EQ(model.rows()[2].difference, "-3.5");
    EXPECT_EQ(model.fields().beginningPhotoDate, "Date Photo Taken");
    EXPECT_FALSE(model.changed());
}

TEST_F(TrackerModelTest, ABlankPhotoDateLoadsAsThePlaceholder)
{
    folder.writeBytes(QStringLiteral("Lee.Fil"), QuotedLines({"3", "", "", "", "", "", "", " ", ""}));
    TrackerModel model;
    model.load(QStringLiteral("Lee"));
    EXPECT_EQ(model.fields().beginningPhotoDate, "Date Photo Taken");
    EXPECT_EQ(model.fields().currentPhotoDate, "Date Photo Taken");
}

TEST_F(TrackerModelTest, SaveRewritesTheFileAndAFailedSaveKeepsChanged)
{
    TrackerModel model = loadedPat();
    model.setWeight(3, QStringLiteral("205"));
    ASSERT_TRUE(model.save());
    EXPECT_FALSE(model.changed());
    EXPECT_EQ(ReadTrackerFile(QStringLiteral("Pat Doe.Fil")).rows[2].weight, "205");

    const QByteArray before = folder.bytesOf(QStringLiteral("Pat Doe.Fil"));
    model.setWeight(3, QStringLiteral("204"));
    QFile::remove(folder.filePath(QStringLiteral("Pat Doe.Fil")));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Pat Doe.Fil")));
    EXPECT_EQ(model.save(), WriteOutcome::FailedOn(QStringLiteral("Pat Doe.Fil")));
    EXPECT_TRUE(model.changed());
    EXPECT_FALSE(before.isEmpty());
}

TEST_F(TrackerModelTest, SavingANewIndividualUnderAnExistingNameReplacesTheFileAndListsTheNameTwice)
{
    TrackerModel model = loadedPat();
    model.startCreating();
    model.fields().beginningWeight = QStringLiteral("222");
    ASSERT_TRUE(model.saveNew(QStringLiteral(" Pat Doe ")));
    EXPECT_EQ(ReadIndividualList(), QStringList({"Pat Doe", "Pat Doe"}));
    const TrackerFile file = ReadTrackerFile(QStringLiteral("Pat Doe.Fil"));
    EXPECT_EQ(file.fields.beginningWeight, "222");
    EXPECT_EQ(file.rowCount(), 50);
    EXPECT_EQ(file.rows, QList<WeighIn>(49));
}

TEST_F(TrackerModelTest, APictureEnteredForANewIndividualIsWrittenBySaveNewFile)
{
    TrackerModel model;
    model.startCreating();
    model.fields().beginningPicture = QStringLiteral("/pictures/before.jpg");
    ASSERT_TRUE(model.saveNew(QStringLiteral("Kim")));
    EXPECT_EQ(ReadTrackerFile(QStringLiteral("Kim.Fil")).fields.beginningPicture, "/pictures/before.jpg");
}

TEST_F(TrackerModelTest, DeletingTheLastIndividualLeavesNoListFile)
{
    TrackerModel model = loadedPat();
    ASSERT_TRUE(model.deleteIndividual(QStringLiteral("Pat Doe")));
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("Pat Doe.Fil"))));
    EXPECT_FALSE(QFile::exists(folder.filePath(QString::fromLatin1(kIndividualListFile))));
    EXPECT_FALSE(model.readList());
    EXPECT_EQ(model.state(), TrackerState::Nothing);
}

TEST_F(TrackerModelTest, DeletingOneOfTwoRewritesTheList)
{
    folder.writeBytes(QStringLiteral("Kim.Fil"), QuotedLines({"2"}));
    TrackerModel model = loadedPat();
    folder.writeBytes(QString::fromLatin1(kIndividualListFile), QuotedLines({"Kim", "Pat Doe"}));
    ASSERT_TRUE(model.readList());
    ASSERT_TRUE(model.deleteIndividual(QStringLiteral("Kim")));
    EXPECT_EQ(folder.bytesOf(QString::fromLatin1(kIndividualListFile)), QuotedLines({"Pat Doe"}));
    EXPECT_EQ(model.state(), TrackerState::Choosing);
}

TEST_F(TrackerModelTest, AListEntryWhoseFileIsGoneStaysAndLoadsBlank)
{
    folder.writeBytes(QString::fromLatin1(kIndividualListFile), QuotedLines({"Gone"}));
    TrackerModel model;
    ASSERT_TRUE(model.readList());
    model.load(QStringLiteral("Gone"));
    EXPECT_EQ(model.rows().size(), 49);
    EXPECT_EQ(model.individuals(), QStringList({"Gone"}));
}

TEST_F(TrackerModelTest, DeletingRowOneLeavesTheOldChangeInTheNewFirstRowUntilTheNextEdit)
{
    TrackerModel model = loadedPat();
    model.rows()[1] = StoredRow(QStringLiteral("March 09, 2026"), QStringLiteral("209"));
    model.recompute();
    const QString oldChange = model.rows()[1].change;
    model.deleteRow(1);
    EXPECT_EQ(model.rows()[0].change, oldChange);
    EXPECT_NE(oldChange, "N/A");
    model.setWeight(1, QStringLiteral("209"));
    EXPECT_EQ(model.rows()[0].change, "N/A");
}

TEST_F(TrackerModelTest, RowZeroCountsAsRowOneAndRowsCanBeAddedWithoutLimit)
{
    TrackerModel model = loadedPat();
    model.deleteRow(0);
    EXPECT_EQ(model.rows().size(), 2);
    EXPECT_EQ(model.rows()[0].date, "");
    for (int i = 0; i < 100; ++i)
        model.addRow();
    EXPECT_EQ(model.rows().size(), 102);
    model.deleteRow(500);
    EXPECT_EQ(model.rows().size(), 102);
}

TEST_F(TrackerModelTest, TheSavePromptAsksOnlyWhenTheFormHoldsSomething)
{
    TrackerModel model;
    model.startCreating();
    EXPECT_FALSE(model.holdsEntries(QString()));
    EXPECT_TRUE(model.holdsEntries(QStringLiteral("Kim")));
    model.fields().goalWeight = QStringLiteral("150");
    EXPECT_TRUE(model.holdsEntries(QString()));
}

TEST(TrackerCommandStates, ByStateAndPanel)
{
    const struct {
        const char* name;
        TrackerState state;
        TrackerPanel panel;
        TrackerCommandStates on;
    } cases[] = {
        {"nothing loaded", TrackerState::Nothing, TrackerPanel::None,
         {.view = true, .create = true, .colors = true, .exit = true}},
        {"creating", TrackerState::Creating, TrackerPanel::None,
         {.view = true, .saveNew = true, .colors = true, .exit = true}},
        {"the list up", TrackerState::Choosing, TrackerPanel::None,
         {.view = true, .create = true, .save = true, .remove = true, .colors = true, .exit = true}},
        {"loaded", TrackerState::Loaded, TrackerPanel::None,
         {.view = true, .create = true, .save = true, .remove = true, .individual = true, .colors = true,
          .exit = true}},
        {"the graph up", TrackerState::Loaded, TrackerPanel::Graph,
         {.view = true, .create = true, .save = true, .remove = true, .individual = true, .colors = true,
          .exit = true}},
        {"printing", TrackerState::Loaded, TrackerPanel::Print, {}},
        {"choosing a picture", TrackerState::Creating, TrackerPanel::Chooser, {}},
    };
    for (const auto& row : cases)
        EXPECT_EQ(CommandStatesFor(row.state, row.panel), row.on) << row.name;
}
