// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/INode.h>
#include <GenApi/INodeMap.h>

#include <QObject>
#include <QString>
#include <QVariant>
#include <QVector>

#include <atomic>
#include <functional>
#include <memory>

namespace OrvGui {

/// What the user has written to the features of one camera, to be undone and redone.
///
/// All windows of a camera share one journal: get it by `of`, keep the pointer as long as you work
/// with that node map, and pass each write of the user's through `write`. A step is
/// - what one gesture has led to: a drag, a button or key that is held, a turn of the wheel;
/// - or what is written while a `Group` exists;
/// - or a single write.
///
/// A value that was written while a selector stood on Red is put back on Red, and the selector goes
/// back to where it was. Moving a selector is no step, nor are commands, writes that the camera
/// refuses, and writes of which the former value or a selector is not known: nothing is read for
/// the journal. Undoing takes the writes alone, and waits for them as any write does.
///
/// A node map that is destroyed leaves an empty journal, in which nothing is recorded. Use it on
/// the GUI thread only.
class FeatureJournal : public QObject
{
    Q_OBJECT

public:
    using Pointer = std::shared_ptr<FeatureJournal>;

    /// A feature and its value: a bool, a qlonglong, a double or a QString, which for an
    /// enumeration is the symbolic name of the entry.
    struct Setting
    {
        QString feature;
        QVariant value;
        QString text; ///< the same as GenICam's text; null when it is not known

        bool operator==(const Setting &other) const
        {
            return feature == other.feature && value == other.value;
        }
    };

    /// A write that has been carried out, with GenICam's texts.
    struct Write
    {
        GenApi::INode *node = nullptr;
        QString before; ///< null when it is not known
        QString after;
        QVector<Setting> selectors; ///< where the value belongs; those missing are where they are
    };

    /// What a write is going to change. Invalid without what is needed to put it back.
    struct State
    {
        QVariant value;
        QString text;
        QVector<Setting> selectors; ///< those of the feature, the outermost first
        bool areSelectorsKnown = false;
    };

    /// Has what is recorded while it exists, in however many writes, be one step. May have a null
    /// journal.
    class Group
    {
    public:
        explicit Group(Pointer journal);
        ~Group();
        Q_DISABLE_COPY(Group)

    private:
        const Pointer m_journal;
    };

    /// The journal of that node map, which ends with the last pointer to it; null for null.
    static Pointer of(GenApi::INodeMap *nodeMap);
    ~FeatureJournal() override;

    /// Runs `call`, which writes `after` to the feature and answers whether the camera has taken
    /// it, and records that. `shown` counts as the former value where that is not known otherwise.
    /// Answers what `call` does. `journal` may be null; `call` may do anything.
    static bool write(const Pointer &journal, const QString &feature, const QVariant &shown,
                      const QVariant &after, const std::function<bool()> &call);

    /// For writes that cannot be passed as a function: take the state before the write, and record
    /// it when the write has succeeded.
    State known(GenApi::INode *node) const;
    void record(GenApi::INode *node, const State &before, const QVariant &after);

    /// For values that were replaced past the journal, in the order in which they were written: no
    /// step may put back what was there before that. Without writes, which values is not known.
    void startAnew(const QVector<Write> &writes = {});

    bool canUndo() const;
    bool canRedo() const;

    /// The next step as an entry of a menu: "Undo ExposureTime 5000 → 8000". Plain text.
    QString undoText() const;
    QString redoText() const;

    /// False when the camera refuses it, which leaves the camera and the journal as they were;
    /// `reason` is set to what it says then.
    bool undo(QString *reason = nullptr);
    bool redo(QString *reason = nullptr);

    /// Forgets the step that would be next, for one that the camera never takes.
    void skipUndo();
    void skipRedo();

Q_SIGNALS:
    /// What can be undone or redone next has changed.
    void changed();

    /// The value of a feature was written, undone or redone, also where that is no step. Selectors
    /// are where they were before, and may be used.
    void written(const OrvGui::FeatureJournal::Write &write);

private:
    struct Change
    {
        Setting before;
        Setting after;
        QVector<Setting> selectors;
    };
    struct Step
    {
        QVector<Change> changes;
        quint64 gesture;
    };
    class Life;
    class Detour;

    explicit FeatureJournal(GenApi::INodeMap *nodeMap);
    bool isAlive() const;
    GenApi::INode *find(const QString &feature) const;
    bool look(const std::function<void()> &ask) const;
    Setting known(GenApi::INode *node, bool looksAhead) const;
    void keep(const Change &change);
    void tell(const QVector<Write> &writes);
    QVector<Write> writesOf(const Step &step, bool isBack) const;
    bool isOpen(quint64 gesture) const;
    static void add(const Change &change, Step &step);
    QString text(const QVector<Step> &steps, const QString &plain, const QString &full) const;
    bool replay(QVector<Step> &from, QVector<Step> &to, bool isBack, QString *reason);
    void skip(QVector<Step> &steps);
    void apply(const Step &step, bool isBack);
    void applyAll(const QVector<Change> &changes, bool isBack, int &done);

    GenApi::INodeMap *const m_nodeMap;
    const std::shared_ptr<std::atomic<bool>> m_isAlive;
    GenApi::CallbackHandleType m_life = 0;
    QVector<Step> m_done;   ///< the last one last
    QVector<Step> m_undone; ///< the same
    int m_groups = 0;
    bool m_isGroupOpen = false; ///< the last step is of the group that exists
    bool m_isReplaying = false;
};

} // namespace OrvGui
