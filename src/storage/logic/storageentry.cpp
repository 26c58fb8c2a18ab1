#include "storage/logic/storageentry.h"

#include "common/dates.h"
#include "common/numbertext.h"
#include "storage/logic/storagecalc.h"

namespace {

const Message kAllViewOnly{QStringLiteral("Grid Entry"),
                           QStringLiteral("These entries can only be entered or changed when All data is selected!"),
                           Buttons::Ok, Icon::Exclamation, 1};
const Message kNameFirst{kFoodStorageEntryTitle, QStringLiteral("Please enter Storage Item Name First!"),
                         Buttons::Ok, Icon::Exclamation, 1};
const Message kNothingToUse{kFoodStorageEntryTitle,
                            QStringLiteral("There is No Amount On Hand Total for this Storage Item\n"
                                           "from which to Remove Amount Used!"),
                            Buttons::Ok, Icon::Exclamation, 1};

CursorOutcome NameFirst(int column)
{
    CursorOutcome outcome;
    outcome.closeCalendar = column != kDateColumn;
    outcome.notice = kNameFirst;
    outcome.then = CursorOutcome::Then::ToItemColumn;
    return outcome;
}

CursorOutcome LoadInput(const StorageTable& table, int row, int column)
{
    CursorOutcome outcome;
    outcome.then = CursorOutcome::Then::LoadInput;
    outcome.entryColumn = column;
    outcome.inputText = table.cell(row, column);
    return outcome;
}

// The new amount per person: a number typed without a unit keeps the old
// text's unit.
QString AmountPerPerson(const QString& oldText, const QString& typed)
{
    const QString value = typed.trimmed();
    if (value.isEmpty() || value == oldText || value.contains(u' '))
        return value;
    const QString unit = KeptUnit(oldText);
    return unit.isEmpty() ? value : value + u' ' + unit;
}

} // namespace

CursorOutcome CursorRuleFor(const StorageTable& table, int row, int column, bool allView)
{
    if (!allView && column >= kFamilyColumn && column <= kNeededColumn) {
        CursorOutcome outcome;
        outcome.notice = kAllViewOnly;
        return outcome;
    }
    CursorOutcome outcome;
    outcome.closeCalendar = column != kDateColumn;
    if (table.cell(row, column) == kNotApplicable) {
        outcome.then = CursorOutcome::Then::ToItemColumn;
        return outcome;
    }
    const bool noName = HasNoItemName(table, row);
    switch (column) {
    case kItemColumn:
        return LoadInput(table, row, kItemColumn);
    case kFamilyColumn:
        outcome.then = allView ? CursorOutcome::Then::FocusFamily : CursorOutcome::Then::Nothing;
        return outcome;
    case kPerPersonColumn:
    case kNeededColumn:
        // The need is worked out: its entry goes to the amount per person.
        return noName ? NameFirst(column) : LoadInput(table, row, kPerPersonColumn);
    case kOnHandColumn:
        // The amount on hand changes through Added and Used only.
        return outcome;
    case kDateColumn: {
        if (noName)
            return NameFirst(column);
        CursorOutcome calendar = LoadInput(table, row, kDateColumn);
        calendar.then = CursorOutcome::Then::OpenCalendar;
        calendar.closeCalendar = false;
        calendar.calendarDate = ParseDate(table.cell(row, kDateColumn)).value_or(QDate());
        return calendar;
    }
    case kAddedColumn:
        return noName ? NameFirst(column) : LoadInput(table, row, kAddedColumn);
    case kUsedColumn:
        if (!(Val(table.cell(row, kOnHandColumn)) > 0)) {
            outcome.notice = kNothingToUse;
            return outcome;
        }
        return LoadInput(table, row, kUsedColumn);
    default:
        return outcome;
    }
}

bool InputAccepts(int column, QChar typed)
{
    if (typed == u'"')
        return false;
    if (column == kItemColumn || column == kPerPersonColumn)
        return true;
    return typed.unicode() >= 46 && typed.unicode() <= 57;
}

bool FamilyAccepts(QChar typed)
{
    return typed.unicode() >= 48 && typed.unicode() <= 57;
}

QString KeptUnit(const QString& oldAmount)
{
    if (!oldAmount.contains(u' '))
        return QString();
    if (oldAmount.endsWith(QLatin1String("gals")))
        return QStringLiteral("gals");
    return WithoutLeadingBlanks(oldAmount.right(3));
}

CommitOutcome CommitValue(StorageTable& table, StorageKind kind, int row, int column, const QString& typed,
                          const QString& familySize, bool allView)
{
    CommitOutcome outcome;
    const double value = Val(typed);
    if (column >= kNeededColumn && value < 0) {
        outcome.refused = true;
        return outcome;
    }
    QString text = typed;
    if (column == kPerPersonColumn) {
        if (value <= 0 && table.cell(row, kDateColumn) != kNotApplicable) {
            for (const int need : {kFamilyColumn, kPerPersonColumn, kNeededColumn})
                table.setCell(row, need, QString());
            text.clear();
        } else {
            text = AmountPerPerson(table.cell(row, kPerPersonColumn), typed);
        }
    } else if (column == kItemColumn) {
        const QString name = WithoutLeadingBlanks(typed);
        if (!name.isEmpty() && IndentsOnEntry(kind, row, table.cell(row, kFamilyColumn), name))
            text = kItemIndent + name;
    }
    table.setCell(row, column, text);

    const float amount = ToSingle(value);
    if (column == kPerPersonColumn && allView) {
        RecalculateAll(table, kind, familySize);
        outcome.recalculated = true;
    } else if (column == kAddedColumn && amount > 0) {
        AddToStock(table, kind, row, amount);
        outcome.stockChanged = true;
    } else if (column == kUsedColumn && amount > 0) {
        UseFromStock(table, kind, row, amount);
        outcome.stockChanged = true;
    }
    return outcome;
}
