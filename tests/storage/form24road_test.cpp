// A household's road through each kind of storage, from the delivered files
// of a new program folder: defaults, family size, entries, review by
// category, the rollup, printing, copying, exporting and saving, with every
// message shown once and every written byte checked.
#include "print/logic/printfont.h"
#include "print/screens/printoptionspanel.h"
#include "shell/logic/deliveredfiles.h"
#include "storage/logic/storageedits.h"
#include "storage/logic/storagefiles.h"
#include "storage/logic/storageoutput.h"
#include "storage/screens/percentpanel.h"
#include "storage/screens/storageexportpanel.h"
#include "common/quotedlinefile.h"
#include "common/tabdelimited.h"
#include "form24_fixture.h"
#include "pdf_text.h"

#include <QBarSeries>
#include <QBarSet>
#include <QCalendarWidget>
#include <QChart>
#include <QClipboard>
#include <QGuiApplication>
#include <QRadioButton>
#include <QTemporaryDir>

namespace {

class Form24RoadTest : public Form24Test {
protected:
    Form24RoadTest()
    {
        // A new program folder: the delivered files, nothing of the family's.
        for (const QString& name : kStoredStorageFiles)
            QFile::remove(folder.filePath(name));
        InstallDeliveredFiles(folder.path());
        PrintFont() = TextFont{};
    }
    ~Form24RoadTest() override { PrintFont() = TextFont{}; }

    // The messages shown, as "title: text".
    QStringList shown() const
    {
        QStringList texts;
        for (const Message& message : dialogs.messages())
            texts << message.title + ": " + message.text;
        return texts;
    }

    // The table the road should leave: the delivered defaults worked out for
    // a family of three, with the entries of the road on the last row.
    static StorageTable expectedTable(StorageKind kind)
    {
        StorageTable table;
        RestoreMarkers(table, kind);
        ApplyDefaultTitles(table, kind, ReadDefaultTitles(kind));
        ApplyDefaultAmounts(table, kind, ReadDefaultAmounts(kind));
        RecalculateAll(table, kind, QStringLiteral("3"));
        const QString onHand = kind == StorageKind::Emergency ? QStringLiteral("6 pks") : QStringLiteral("6");
        const QStringList entered{"Spare Batteries", "3", "2 pks", "6 pks", onHand, "4/3/26", "", "4"};
        for (int column = 0; column < kStorageColumns; ++column)
            table.setCell(60, column, entered[column]);
        return table;
    }

    // Fills the road's entries on the last row (a single item in every kind)
    // and returns the screen to "&All" through a category, saving on the way.
    void enterAndReview(Form24& form, StorageKind kind)
    {
        const QString question = "Replace Item Titles with Default Titles?";
        dialogs.expectMessage("Default Setting", question, Answer::Yes);
        act(form, "mItemDefaults")->trigger();
        dialogs.expectMessage("Default Setting", "Replace Approximate Amount Per Person\nwith Default Amounts?",
                              Answer::Yes);
        act(form, "mApproxAmounts")->trigger();
        form.familyField()->setFocus();
        form.familyField()->selectAll();
        QTest::keyClicks(form.familyField(), "3");
        QTest::keyClick(form.familyField(), Qt::Key_Return);

        enterAt(form, 59, 0, "Spare Batteries");
        enterAt(form, 59, 2, "2 pks");
        enterAt(form, 59, 6, "10");
        enterAt(form, 59, 7, "4");
        moveTo(form, 59, 5);
        QCalendarWidget* month = form.calendar()->calendar();
        month->setSelectedDate(QDate(2026, 4, 3));
        emit month->activated(QDate(2026, 4, 3));
        dialogs.expectMessage("Delete Data", "Delete All Last Action Data,\n(Last 3 Columns of Data)?", Answer::No);
        act(form, "mClearLastActions")->trigger();

        dialogs.expectMessage("Food Storage",
                              "These button are for review only!\n"
                              "Save changes made to Food Storage data before this action?",
                              Answer::Yes);
        const int last = kind == StorageKind::Additional ? 6 : 8;
        form.categoryButton(last)->click();
        EXPECT_EQ(form.grid()->rowCount(), 6);
        EXPECT_EQ(cell(form, 5, 0), "Spare Batteries");
        form.categoryButton(0)->click();
    }

    void printCopyExportAndSave(Form24& form, StorageKind kind, StorageTable expected, const QString& pdf)
    {
        act(form, "mPrint")->trigger();
        PrintOptionsPanel* panel = form.printPanel();
        EXPECT_TRUE(form.findChild<QRadioButton*>("PrintChoice_0")->isChecked()) << "stock on hand";
        form.findChild<QRadioButton*>("PrintChoice_3")->click();
        const QStringList printed = panel->document().allTexts();
        EXPECT_TRUE(printed.contains(form.windowTitle().trimmed()));
        EXPECT_TRUE(printed.contains("Spare Batteries"));
        EXPECT_TRUE(printed.contains("4/3/26"));
        if (!pdf.isEmpty()) {
            dialogs.expectPrint(pdf);
            panel->command(PrintOptionsPanel::kPrint)->click();
        }
        panel->command(PrintOptionsPanel::kExitPrintOptions)->click();

        dialogs.expectMessage("Copy Option", "Data has been copied to the Windows Clipboard.");
        act(form, "mCopy")->trigger();
        EXPECT_EQ(QGuiApplication::clipboard()->text(), StorageClipboardText(expected));

        act(form, "mExport")->trigger();
        dialogs.expectMessage("Export Function", "Export Completed to selected location!");
        form.exportPanel()->exportFile();
        form.pressEscape();
        QList<QStringList> rows;
        for (int row = 1; row <= kStorageRows; ++row)
            rows << expected.rowTexts(row);
        const QString exported = folder.filePath(ProposedExportName(form.windowTitle()));
        EXPECT_EQ(ReadFileBytes(exported), TabDelimitedText(ExportRows(GridHeadings("USA"), rows)));

        act(form, "mSave")->trigger();
        RestoreMarkers(expected, kind);
        EXPECT_EQ(folder.bytesOf(TableFileOf(kind)), EncodeQuotedLines(expected.values()));
        EXPECT_EQ(folder.bytesOf("FdsB2.Fil"), QByteArray("\"3\"\r\n"));
    }
};

const QStringList kEntryMessages{
    "Default Setting: Replace Item Titles with Default Titles?",
    "Default Setting: Replace Approximate Amount Per Person\nwith Default Amounts?",
    "Delete Data: Delete All Last Action Data,\n(Last 3 Columns of Data)?",
    "Food Storage: These button are for review only!\nSave changes made to Food Storage data before this action?",
};
const QStringList kOutputMessages{
    "Copy Option: Data has been copied to the Windows Clipboard.",
    "Export Function: Export Completed to selected location!",
};

} // namespace

TEST_F(Form24RoadTest, BasicStorageFromDefaultsToRollupPrintCopyExportAndSave)
{
    auto form = openShown(StorageKind::Basic);
    EXPECT_EQ(cell(*form, 0, 0), "Grains") << "the delivered table";
    enterAndReview(*form, StorageKind::Basic);
    enterAt(*form, 1, 6, "150");
    enterAt(*form, 33, 6, "4");

    act(*form, "mRollup")->trigger();
    EXPECT_EQ(form->percentPanel()->list()->rowTexts(0), QStringList({"Grains", "900 lbs", "150", "17%"}));
    EXPECT_EQ(form->percentPanel()->list()->rowTexts(3), QStringList({"Salt", "24 lbs", "4", "17%"}));
    const QBarSet* bars = form->percentPanel()->series()->barSets().first();
    EXPECT_NEAR(bars->at(0), 100.0 * 150 / 900, 0.01);
    EXPECT_EQ(form->percentPanel()->chart()->axes(Qt::Horizontal).first()->property("categories").toStringList(),
              QStringList({"Grains", "Dairy", "Sugars", "Salt", "Fats and Oils", "Legumes", "Water"}));
    form->percentPanel()->turnBars();
    EXPECT_EQ(form->percentPanel()->series()->type(), QAbstractSeries::SeriesTypeHorizontalBar);
    act(*form, "mRollup")->trigger();

    // Taken out again: the group keeps a total of 0.
    enterAt(*form, 1, 7, "150");
    enterAt(*form, 33, 7, "4");
    StorageTable expected = expectedTable(StorageKind::Basic);
    expected.setCell(1, kOnHandColumn, QStringLiteral("0 lbs"));
    expected.setCell(2, kUsedColumn, QStringLiteral("150"));
    expected.setCell(34, kUsedColumn, QStringLiteral("4"));
    printCopyExportAndSave(*form, StorageKind::Basic, expected, QString());
    EXPECT_EQ(shown(), kEntryMessages + kOutputMessages);
}

TEST_F(Form24RoadTest, EmergencyStorageFromDefaultsToAPdfCopyExportAndSave)
{
    auto form = openShown(StorageKind::Emergency);
    EXPECT_EQ(cell(*form, 0, 0), "Food (3 day supply)");
    enterAndReview(*form, StorageKind::Emergency);
    QTemporaryDir pdfFolder;
    const QString pdf = pdfFolder.filePath("emergency.pdf");
    printCopyExportAndSave(*form, StorageKind::Emergency, expectedTable(StorageKind::Emergency), pdf);
    EXPECT_EQ(shown(), kEntryMessages + kOutputMessages);
    const QString text = PdfText(pdf);
    for (const char* part : {"Emergency Storage", "Spare Batteries", "6 pks", "4/3/26", "Family"})
        EXPECT_TRUE(text.contains(QString::fromLatin1(part))) << part;
    form->close();
    EXPECT_FALSE(form->isVisible()) << "saved: no question";
}

TEST_F(Form24RoadTest, AdditionalStorageFromDefaultsToCopyExportAndSave)
{
    auto form = openShown(StorageKind::Additional);
    EXPECT_EQ(cell(*form, 1, 0), "    Canned Chicken");
    enterAndReview(*form, StorageKind::Additional);
    printCopyExportAndSave(*form, StorageKind::Additional, expectedTable(StorageKind::Additional), QString());
    EXPECT_EQ(shown(), kEntryMessages + kOutputMessages);
}
