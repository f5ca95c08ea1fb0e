// SPDX-License-Identifier: MIT
#include "journal/featurejournal.h"

#include "base/cameratext.h"
#include "base/genicamstring.h"
#include "base/selectormove.h"
#include "base/selectors.h"
#include "base/selectorsinuse.h"
#include "journal/inputgesture.h"

#include <GenApi/GenApi.h>
#include <OrvGenParam/LookAhead.h>

#include <QHash>
#include <QLocale>
#include <QScopedValueRollback>
#include <QStringList>

#include <algorithm>
#include <utility>

using namespace GenApi;

namespace OrvGui {

namespace {

constexpr int mostSteps = 1000;
constexpr int longestValue = 40; // characters, in the text of a step

using Journals = QHash<INodeMap *, std::weak_ptr<FeatureJournal>>;

Journals &journals()
{
    static Journals all;
    return all;
}

QString nameOf(const INode *node)
{
    return fromUtf8(node->GetName());
}

QVariant entryOf(const IEnumEntry *entry)
{
    return entry ? QVariant(fromUtf8(entry->GetSymbolic())) : QVariant();
}

/// Invalid for a feature without a restorable value.
QVariant valueOf(INode *node)
{
    if (auto *choice = dynamic_cast<IEnumeration *>(node))
        return entryOf(choice->GetCurrentEntry());
    if (auto *flag = dynamic_cast<IBoolean *>(node))
        return flag->GetValue();
    if (auto *number = dynamic_cast<IInteger *>(node))
        return static_cast<qlonglong>(number->GetValue());
    if (auto *real = dynamic_cast<IFloat *>(node))
        return real->GetValue();
    if (auto *text = dynamic_cast<IString *>(node))
        return fromUtf8(text->GetValue());
    return QVariant();
}

/// The same for a value of a widget or a text in GenICam's format. A text stays a text unless it is
/// a plain number.
QVariant asValueOf(INode *node, const QVariant &value)
{
    if (!value.isValid())
        return value;
    bool isNumber = false;
    if (auto *choice = dynamic_cast<IEnumeration *>(node)) {
        const qlonglong number = value.toLongLong(&isNumber);
        const bool isName = choice->GetEntryByName(toUtf8(value.toString()));
        return isName || !isNumber ? value.toString() : entryOf(choice->GetEntry(number));
    }
    if (dynamic_cast<IBoolean *>(node))
        return value.toBool();
    if (dynamic_cast<IInteger *>(node)) {
        const qlonglong number = value.toLongLong(&isNumber);
        return isNumber ? QVariant(number) : value;
    }
    if (dynamic_cast<IFloat *>(node)) {
        const double number = value.toDouble(&isNumber);
        return isNumber ? QVariant(number) : value;
    }
    return dynamic_cast<IString *>(node) ? QVariant(value.toString()) : QVariant();
}

void setValue(INode *node, const QVariant &value)
{
    if (auto *choice = dynamic_cast<IEnumeration *>(node))
        choice->FromString(toUtf8(value.toString()));
    else if (auto *flag = dynamic_cast<IBoolean *>(node))
        flag->SetValue(value.toBool());
    else if (auto *any = dynamic_cast<IValue *>(node);
             any && value.userType() == QMetaType::QString)
        any->FromString(toUtf8(value.toString()));
    else if (auto *number = dynamic_cast<IInteger *>(node))
        number->SetValue(value.toLongLong());
    else if (auto *real = dynamic_cast<IFloat *>(node))
        real->SetValue(value.toDouble());
}

/// In GenICam's format; does not need an answer of the node.
QString plainText(const QVariant &value)
{
    if (value.userType() == QMetaType::Bool)
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    if (value.userType() == QMetaType::Double)
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return value.toString();
}

/// False when the camera refuses.
template<class Function>
bool attempt(Function function)
{
    try {
        function();
        return true;
    } catch (const GenICam::GenericException &) {
        return false;
    }
}

QString textOf(const QVariant &value)
{
    if (value.userType() == QMetaType::Double)
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return cameraText(value.toString(), longestValue);
}

QString nameOf(const QString &feature, const QVector<FeatureJournal::Setting> &selectors)
{
    QStringList entries;
    for (const FeatureJournal::Setting &selector : selectors)
        entries << textOf(selector.value);
    const QString name = cameraText(feature, LongestName);
    return entries.isEmpty()
               ? name
               : name + QLatin1Char('[') + entries.join(QStringLiteral(", ")) + QLatin1Char(']');
}

} // namespace

/// Reports the destruction of the node map to the journal.
class FeatureJournal::Life : public CNodeCallback
{
public:
    Life(INode *node, std::shared_ptr<std::atomic<bool>> isAlive)
        : CNodeCallback(node, cbPostOutsideLock), m_isAlive(std::move(isAlive))
    {
    }
    void operator()(ECallbackType) const override {}
    void Destroy() override
    {
        *m_isAlive = false;
        delete this;
    }

private:
    const std::shared_ptr<std::atomic<bool>> m_isAlive;
};

/// Moves selectors and restores them, then repeats the notifications that were ignored in between.
class FeatureJournal::Detour
{
public:
    explicit Detour(const FeatureJournal &journal) : m_journal(journal) {}
    ~Detour() { end(); }
    Q_DISABLE_COPY(Detour)

    void goTo(const QVector<Setting> &selectors);
    void wrote(INode *node);

private:
    void end();
    const FeatureJournal &m_journal;
    SelectorMove m_move;
    QVector<INode *> m_unnotified; ///< nodes whose notification was ignored
};

void FeatureJournal::Detour::goTo(const QVector<Setting> &selectors)
{
    for (const Setting &selector : selectors) {
        if (auto *value = dynamic_cast<IValue *>(m_journal.find(selector.feature)))
            m_move.moveTo(value, selector.text);
    }
}

void FeatureJournal::Detour::wrote(INode *node)
{
    if (m_move.isAway())
        m_unnotified.append(node);
}

void FeatureJournal::Detour::end()
{
    if (!m_journal.isAlive())
        return m_move.abandon();
    for (IValue *selector : m_move.putBack())
        m_unnotified.append(selector->GetNode());
    // Features that depend on the selectors, but are not selected by them, have changed, too.
    for (INode *node : std::as_const(m_unnotified))
        attempt([=] { node->InvalidateNode(); });
}

FeatureJournal::Group::Group(Pointer journal) : m_journal(std::move(journal))
{
    if (m_journal)
        ++m_journal->m_groups;
}

FeatureJournal::Group::~Group()
{
    if (m_journal && --m_journal->m_groups == 0)
        m_journal->m_isGroupOpen = false;
}

FeatureJournal::Pointer FeatureJournal::of(INodeMap *nodeMap)
{
    if (!nodeMap)
        return nullptr;
    const Pointer known = journals().value(nodeMap).lock();
    if (known && known->isAlive())
        return known;
    const Pointer made(new FeatureJournal(nodeMap));
    journals().insert(nodeMap, made);
    return made;
}

FeatureJournal::FeatureJournal(INodeMap *nodeMap)
    : m_nodeMap(nodeMap), m_isAlive(std::make_shared<std::atomic<bool>>(true))
{
    InputGesture::current(); // starts to track the gestures
    NodeList_t nodes;
    nodeMap->GetNodes(nodes);
    if (nodes.size() > 0)
        m_life = nodes[0]->RegisterCallback(new Life(nodes[0], m_isAlive));
}

FeatureJournal::~FeatureJournal()
{
    if (m_life && *m_isAlive)
        Deregister(m_life);
    const auto own = journals().constFind(m_nodeMap);
    if (own != journals().constEnd() && own.value().expired())
        journals().erase(own);
}

bool FeatureJournal::isAlive() const
{
    return *m_isAlive;
}

/// Throws when there is none.
INode *FeatureJournal::find(const QString &feature) const
{
    if (INode *node = m_nodeMap->GetNode(toUtf8(feature)))
        return node;
    throw GenICam::LogicalErrorException(toUtf8(tr("There is no %1.").arg(feature)).c_str(),
                                         __FILE__, __LINE__);
}

/// False when a value is not cached.
bool FeatureJournal::look(const std::function<void()> &ask) const
{
    const auto *ahead = dynamic_cast<OrvGenParam::LookAhead *>(m_nodeMap);
    bool isKnown = true;
    return attempt([&] {
               if (ahead)
                   isKnown = ahead->look(ask);
               else
                   ask();
           }) &&
           isKnown;
}

/// Without a value when it is not cached.
FeatureJournal::Setting FeatureJournal::known(INode *node, bool looksAhead) const
{
    Setting setting{nameOf(node), QVariant(), QString()};
    const bool isKnown = look([&, node] {
        auto *value = dynamic_cast<IValue *>(node);
        if (!value || (!looksAhead && !value->IsValueCacheValid()))
            return;
        setting.value = valueOf(node);
        if (setting.value.isValid())
            setting.text = fromUtf8(value->ToString());
    });
    return isKnown ? setting : Setting{setting.feature, QVariant(), QString()};
}

FeatureJournal::State FeatureJournal::known(INode *node) const
{
    State state;
    if (!isAlive() || !node)
        return state;
    const bool looksAhead = dynamic_cast<OrvGenParam::LookAhead *>(m_nodeMap);
    const Setting now = known(node, looksAhead);
    state.value = now.value;
    state.text = now.text;
    std::vector<IValue *> selectors;
    state.areSelectorsKnown = look([&] { selectors = selectorsOf(dynamic_cast<IValue *>(node)); });
    for (IValue *selector : selectors) {
        const Setting setting = known(selector->GetNode(), looksAhead);
        state.areSelectorsKnown = state.areSelectorsKnown && setting.value.isValid();
        state.selectors.append(setting);
    }
    return state;
}

bool FeatureJournal::write(const Pointer &journal, const QString &feature, const QVariant &shown,
                           const QVariant &after, const std::function<bool()> &call)
{
    const Pointer kept = journal; // the call may destroy the owner of the journal
    INode *const node =
        kept && kept->isAlive() ? kept->m_nodeMap->GetNode(toUtf8(feature)) : nullptr;
    if (!node)
        return call();
    State before = kept->known(node);
    if (!before.value.isValid())
        before.value = shown;
    const bool isTaken = call();
    if (isTaken)
        kept->record(node, before, after);
    return isTaken;
}

void FeatureJournal::record(INode *node, const State &before, const QVariant &after)
{
    if (!isAlive() || !node || m_isReplaying)
        return;
    Change change;
    const bool isKnown = look([&] {
        const QVariant former = asValueOf(node, before.value);
        change = {{nameOf(node), former, before.text},
                  {nameOf(node), asValueOf(node, after), QString()},
                  before.selectors};
    });
    if (!isKnown || !change.after.value.isValid())
        return;
    if (change.before.text.isNull() && change.before.value.isValid())
        change.before.text = plainText(change.before.value);
    change.after.text = known(node, dynamic_cast<OrvGenParam::LookAhead *>(m_nodeMap)).text;
    if (change.after.text.isNull())
        change.after.text = plainText(change.after.value);
    auto *feature = dynamic_cast<IValue *>(node);
    const bool isStep = before.areSelectorsKnown && !isSelector(feature) &&
                        change.before.value.isValid() && change.before.value != change.after.value;
    if (isStep)
        keep(change);
    emitWritten({{node, change.before.text, change.after.text, change.selectors}});
}

void FeatureJournal::keep(const Change &change)
{
    const quint64 gesture = InputGesture::current();
    if (!isOpen(gesture))
        m_done.append({{}, gesture});
    m_isGroupOpen = m_groups > 0;
    add(change, m_done.last());
    if (m_done.last().changes.isEmpty()) {
        m_done.removeLast();
        m_isGroupOpen = false;
    }
    if (m_done.size() > mostSteps)
        m_done.removeFirst();
    m_undone.clear();
    emit changed();
}

void FeatureJournal::startAnew(const QVector<Write> &writes)
{
    m_done.clear();
    m_undone.clear();
    m_isGroupOpen = false;
    emit changed();
    emitWritten(writes);
}

/// A receiver of the signal may destroy the node map.
void FeatureJournal::emitWritten(const QVector<Write> &writes)
{
    for (const Write &write : writes) {
        if (isAlive())
            emit written(write);
    }
}

QVector<FeatureJournal::Write> FeatureJournal::writesOf(const Step &step, bool isBack) const
{
    QVector<Write> writes;
    for (const Change &change : step.changes) {
        const Setting &former = isBack ? change.after : change.before;
        const Setting &latter = isBack ? change.before : change.after;
        writes.append({find(change.before.feature), former.text, latter.text, change.selectors});
    }
    if (isBack)
        std::reverse(writes.begin(), writes.end());
    return writes;
}

bool FeatureJournal::isOpen(quint64 gesture) const
{
    return !m_done.isEmpty() &&
           (m_isGroupOpen || (gesture != 0 && m_done.last().gesture == gesture));
}

/// A second change of the same setting is merged with the previous one.
void FeatureJournal::add(const Change &change, Step &step)
{
    QVector<Change> &changes = step.changes;
    for (int i = int(changes.size()) - 1; i >= 0; --i) {
        Change &former = changes[i];
        if (former.before.feature == change.before.feature &&
            former.selectors == change.selectors) {
            former.after = change.after;
            if (former.after.value == former.before.value)
                changes.removeAt(i);
            return;
        }
        if (step.gesture == 0)
            break; // the order may matter in a group
    }
    changes.append(change);
}

bool FeatureJournal::canUndo() const
{
    return isAlive() && !m_done.isEmpty();
}

bool FeatureJournal::canRedo() const
{
    return isAlive() && !m_undone.isEmpty();
}

QString FeatureJournal::undoText() const
{
    return text(m_done, tr("Undo"), tr("Undo %1"));
}

QString FeatureJournal::redoText() const
{
    return text(m_undone, tr("Redo"), tr("Redo %1"));
}

QString FeatureJournal::text(const QVector<Step> &steps, const QString &plain,
                             const QString &full) const
{
    if (!isAlive() || steps.isEmpty())
        return plain;
    QStringList names;
    const QVector<Change> &changes = steps.last().changes;
    for (const Change &change : changes) {
        const QString name = nameOf(change.before.feature, change.selectors);
        if (!names.contains(name))
            names << name;
    }
    QString text = names.first();
    if (names.size() == 1)
        text += QStringLiteral(" %1 \u2192 %2")
                    .arg(textOf(changes.first().before.value), textOf(changes.last().after.value));
    else
        text = tr("%1 and %2 more").arg(text, QString::number(names.size() - 1));
    return full.arg(text);
}

bool FeatureJournal::undo(QString *reason)
{
    return replay(m_done, m_undone, true, reason);
}

bool FeatureJournal::redo(QString *reason)
{
    return replay(m_undone, m_done, false, reason);
}

bool FeatureJournal::replay(QVector<Step> &from, QVector<Step> &to, bool isBack, QString *reason)
{
    if (!isAlive() || from.isEmpty() || m_isReplaying || SelectorsInUse::isOf(m_nodeMap))
        return true;
    const Step step{from.last().changes, 0};
    QVector<Write> writes;
    try {
        const QScopedValueRollback<bool> replaying(m_isReplaying, true);
        writes = writesOf(step, isBack);
        apply(step, isBack);
    } catch (const GenICam::GenericException &e) {
        if (reason)
            *reason = cameraText(e.GetDescription());
        return false;
    }
    m_isGroupOpen = false;
    from.removeLast();
    to.append(step);
    emit changed();
    emitWritten(writes);
    return true;
}

void FeatureJournal::skipUndo()
{
    skip(m_done);
}

void FeatureJournal::skipRedo()
{
    skip(m_undone);
}

void FeatureJournal::skip(QVector<Step> &steps)
{
    if (!isAlive() || steps.isEmpty() || m_isReplaying)
        return;
    m_isGroupOpen = false;
    steps.removeLast();
    emit changed();
}

void FeatureJournal::apply(const Step &step, bool isBack)
{
    int done = 0;
    try {
        applyAll(step.changes, isBack, done);
    } catch (const GenICam::GenericException &) {
        const int first = isBack ? int(step.changes.size()) - done : 0;
        int again = 0;
        attempt([&] { applyAll(step.changes.mid(first, done), !isBack, again); });
        throw;
    }
}

/// Counts the changes that were applied, from the end when undoing.
void FeatureJournal::applyAll(const QVector<Change> &changes, bool isBack, int &done)
{
    Detour detour(*this);
    const int count = int(changes.size());
    for (done = 0; done < count; ++done) {
        const Change &change = changes.at(isBack ? count - 1 - done : done);
        INode *const node = find(change.before.feature);
        detour.goTo(change.selectors);
        setValue(node, isBack ? change.before.value : change.after.value);
        detour.wrote(node);
    }
}

} // namespace OrvGui
