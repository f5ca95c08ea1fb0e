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

/// The record of the user's writes to the features of one camera, to be undone and redone.
///
/// All windows of a camera share one journal: get it by `of`, keep the pointer while you use that
/// node map, and pass each write by the user through `write`. A step is
/// - the writes of one gesture: a drag, a button or key that is held, a turn of the wheel;
/// - or the writes while a `Group` exists;
/// - or a single write.
///
/// A value that was written while a selector was Red is undone with the selector at Red, and the
/// selector is restored. Moving a selector is not a step, nor are commands, refused writes, and
/// writes whose previous value or selection is not cached: the journal causes no reads. Undo only
/// writes, and blocks for these writes.
///
/// When a node map is destroyed its journal becomes empty and records nothing. Use it on the GUI
/// thread only.
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
        QString text; ///< the same in GenICam's format; null when it is not known

        bool operator==(const Setting &other) const
        {
            return feature == other.feature && value == other.value;
        }
    };

    /// A completed write, with texts in GenICam's format.
    struct Write
    {
        GenApi::INode *node = nullptr;
        QString before; ///< null when it is not known
        QString after;
        QVector<Setting> selectors; ///< at the time of the write; missing ones keep their values
    };

    /// The state before a write. Invalid when it could not be restored.
    struct State
    {
        QVariant value;
        QString text;
        QVector<Setting> selectors; ///< of the feature, the outermost first
        bool areSelectorsKnown = false;
    };

    /// All writes that are recorded while an instance exists form one step. The journal may be
    /// null.
    class Group
    {
    public:
        explicit Group(Pointer journal);
        ~Group();
        Q_DISABLE_COPY(Group)

    private:
        const Pointer m_journal;
    };

    /// The journal of that node map, which is destroyed with the last pointer; null for null.
    static Pointer of(GenApi::INodeMap *nodeMap);
    ~FeatureJournal() override;

    /// Calls `call`, which writes `after` to the feature and returns whether the camera has
    /// accepted it, and records an accepted write. `shown` is the previous value if that is not
    /// cached. Returns the result of `call`. `journal` may be null; `call` may destroy the
    /// journal's owner.
    static bool write(const Pointer &journal, const QString &feature, const QVariant &shown,
                      const QVariant &after, const std::function<bool()> &call);

    /// For writes that cannot be passed as a function: take the state before the write, and record
    /// it when the write has succeeded.
    State known(GenApi::INode *node) const;
    void record(GenApi::INode *node, const State &before, const QVariant &after);

    /// For writes that bypassed the journal, in their order: drops steps that would restore an
    /// earlier value. Without writes, any value may have been replaced.
    void startAnew(const QVector<Write> &writes = {});

    bool canUndo() const;
    bool canRedo() const;

    /// The text of the next step for a menu: "Undo ExposureTime 5000 → 8000". Plain text.
    QString undoText() const;
    QString redoText() const;

    /// Returns false when the camera refuses; the camera and the journal are unchanged then, and
    /// `reason` is set.
    bool undo(QString *reason = nullptr);
    bool redo(QString *reason = nullptr);

    /// Drops the next step, for one that the camera refuses permanently.
    void skipUndo();
    void skipRedo();

Q_SIGNALS:
    /// The next step to undo or redo has changed.
    void changed();

    /// The value of a feature was written, undone or redone, even without a step. Selectors have
    /// been restored and may be used.
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
    void emitWritten(const QVector<Write> &writes);
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
    QVector<Step> m_done;   ///< the latest step last
    QVector<Step> m_undone; ///< the same
    int m_groups = 0;
    bool m_isGroupOpen = false; ///< the last step belongs to the present group
    bool m_isReplaying = false;
};

} // namespace OrvGui
