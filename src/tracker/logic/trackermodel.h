#pragma once
// What the weight tracker screen works on: the list of individuals, the
// displayed individual's fields and weigh-in rows, the changed flag, and
// the commands that read and write their files. The screen shows the model
// and hands it what the user typed; only the screen talks to the user.
#include "common/filewrites.h"
#include "tracker/logic/trackerfile.h"
#include "tracker/logic/weighins.h"
#include "tracker/logic/weightgraph.h"

#include <QtCore/qnamespace.h>

// Nothing loaded yet, a new individual being entered, the list shown with
// no name picked, an individual loaded.
enum class TrackerState { Nothing, Creating, Choosing, Loaded };

class TrackerModel {
public:
    TrackerState state() const { return state_; }
    const QStringList& individuals() const { return individuals_; }
    // The displayed individual's name, trimmed; empty while none is picked.
    const QString& name() const { return name_; }
    TrackerFields& fields() { return fields_; }
    const TrackerFields& fields() const { return fields_; }
    QList<WeighInRow>& rows() { return rows_; }
    const QList<WeighInRow>& rows() const { return rows_; }
    bool changed() const { return changed_; }
    void setChanged(bool changed) { changed_ = changed; }
    // Whether the displayed form holds anything worth the save prompt:
    // a name, the beginning date or weight, the goal or a first date.
    bool holdsEntries(const QString& typedName) const;

    // Reads the list of individuals: false when there is none.
    bool readList();
    // Nothing loaded and no list to pick from: fields and grid blank.
    void reset();
    // The list is up with no name picked: fields and grid blank.
    void startChoosing();
    // An empty form for a new individual, with a fresh grid.
    void startCreating();
    // Loads the individual of a list entry, as it stands in the list.
    void load(const QString& entry);

    // Rewrites the displayed individual's file; the changed flag clears only
    // when the write held.
    WriteOutcome save();
    // Writes lines 1 to 12 of a new individual named `name` (trimmed) and
    // adds the name to the list, which is rewritten.
    WriteOutcome saveNew(const QString& name);
    // Deletes the individual of `entry` and takes the entry off the list;
    // the list file goes with the last individual.
    WriteOutcome deleteIndividual(const QString& entry);

    void addRow();
    // `row` is 1-based; row 0 counts as row 1. The computed columns stay as
    // they were until the next edit.
    void deleteRow(int row);
    // A weight typed into a row (1-based): the computed columns follow.
    void setWeight(int row, const QString& weight);
    void setDate(int row, const QString& date);
    void recompute();

    // A click on the date heading: ascending first, then turn about.
    Qt::SortOrder sortByDate();

    Trend trend() const { return JudgeTrend(rows_, fields_.goalWeight); }
    WeightGraph graph() const { return BuildWeightGraph(name_, rows_, fields_); }

private:
    void blank(int rowCount);
    TrackerFile file() const;

    TrackerState state_ = TrackerState::Nothing;
    QStringList individuals_;
    QString name_;
    TrackerFields fields_;
    QList<WeighInRow> rows_;
    bool changed_ = false;
    Qt::SortOrder lastSort_ = Qt::DescendingOrder;
};
