// SPDX-License-Identifier: MIT
#include "featurejournal.h"

#include "base/cameratext.h"
#include "genparamtree/genicamstring.h"
#include "genparamtree/selectordetour.h"
#include "inputgesture.h"

#include <GenApi/GenApi.h>
#include <OrvGenParam/LookAhead.h>

#include <QHash>
#include <QLocale>
#include <QPair>
#include <QScopedValueRollback>
#include <QStringList>

#include <algorithm>
#include <utility>

using namespace GenApi;

namespace OrvGui {

namespace {

const int mostSteps = 1000;
const int longestValue = 40; // characters, in the text of a step

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

/// Invalid for what has no value to put back.
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

/// The same for a value that has come from a widget.
QVariant asValueOf(INode *node, const QVariant &value)
{
    if (!value.isValid())
        return value;
    if (auto *choice = dynamic_cast<IEnumeration *>(node)) {
        bool isNumber = false;
        const qlonglong number = value.toLongLong(&isNumber);
        const bool isName = choice->GetEntryByName(toUtf8(value.toString()));
        return isName || !isNumber ? value.toString() : entryOf(choice->GetEntry(number));
    }
    if (dynamic_cast<IBoolean *>(node))
        return value.toBool();
    if (dynamic_cast<IInteger *>(node))
        return value.toLongLong();
    if (dynamic_cast<IFloat *>(node))
        return value.toDouble();
    return dynamic_cast<IString *>(node) ? QVariant(value.toString()) : QVariant();
}

void setValue(INode *node, const QVariant &value)
{
    if (auto *choice = dynamic_cast<IEnumeration *>(node))
        choice->FromString(toUtf8(value.toString()));
    else if (auto *flag = dynamic_cast<IBoolean *>(node))
        flag->SetValue(value.toBool());
    else if (auto *number = dynamic_cast<IInteger *>(node))
        number->SetValue(value.toLongLong());
    else if (auto *real = dynamic_cast<IFloat *>(node))
        real->SetValue(value.toDouble());
    else if (auto *text = dynamic_cast<IString *>(node))
        text->SetValue(toUtf8(value.toString()));
}

/// False when the camera refuses it.
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

/// A selector only says what other features are of.
bool isSelector(INode *node)
{
    const auto *selector = dynamic_cast<ISelector *>(node);
    return selector && selector->IsSelector();
}

/// Appends those that the node depends on, the outermost first.
void addSelectors(INode *node, QVector<INode *> &seen, QVector<INode *> &selectors)
{
    seen.append(node);
    const auto *selected = dynamic_cast<ISelector *>(node);
    if (!selected)
        return;
    FeatureList_t selecting;
    selected->GetSelectingFeatures(selecting);
    for (IValue *value : selecting) {
        INode *const selector = value ? value->GetNode() : nullptr;
        if (!selector || seen.contains(selector))
            continue;
        addSelectors(selector, seen, selectors);
        selectors.append(selector);
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

/// Tells the journal that the node map is no more.
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

/// Moves selectors away and back.
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
    std::unique_ptr<SelectorDetour> m_detour;
    QVector<QPair<INode *, QVariant>> m_moved; ///< where they were
    QVector<INode *> m_unheard;                ///< whose notification nobody has heeded
};

void FeatureJournal::Detour::goTo(const QVector<Setting> &selectors)
{
    for (const Setting &selector : selectors) {
        INode *const node = m_journal.find(selector.feature);
        const QVariant current = valueOf(node);
        if (current == selector.value)
            continue;
        if (!m_detour)
            m_detour.reset(new SelectorDetour);
        setValue(node, selector.value);
        const bool isKnown = std::any_of(m_moved.begin(), m_moved.end(),
                                         [=](const auto &one) { return one.first == node; });
        if (!isKnown)
            m_moved.append({node, current});
    }
}

void FeatureJournal::Detour::wrote(INode *node)
{
    if (m_detour)
        m_unheard.append(node);
}

void FeatureJournal::Detour::end()
{
    if (!m_detour || !m_journal.isAlive())
        return;
    const auto put = [](INode *node, const QVariant &value) {
        return attempt([&] { setValue(node, value); });
    };
    while (!m_moved.isEmpty()) {
        const auto selector = m_moved.takeLast();
        if (!put(selector.first, selector.second) && !put(selector.first, selector.second))
            m_unheard.append(selector.first);
    }
    m_detour.reset();
    // What depends on them without being selected has changed for those who look now.
    for (INode *node : std::as_const(m_unheard))
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
    InputGesture::current(); // which sees the gestures from now on
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

/// Throws where there is none.
INode *FeatureJournal::find(const QString &feature) const
{
    if (INode *node = m_nodeMap->GetNode(toUtf8(feature)))
        return node;
    throw GenICam::LogicalErrorException(toUtf8(tr("There is no %1.").arg(feature)).c_str(),
                                         __FILE__, __LINE__);
}

/// False when something is not known.
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

FeatureJournal::State FeatureJournal::known(INode *node) const
{
    State state;
    if (!isAlive() || !node)
        return state;
    const bool looksAhead = dynamic_cast<OrvGenParam::LookAhead *>(m_nodeMap);
    const auto knownOf = [=](INode *one) {
        QVariant value;
        const bool isKnown = look([&, one] {
            const auto *cached = dynamic_cast<IValue *>(one);
            if (looksAhead || (cached && cached->IsValueCacheValid()))
                value = valueOf(one);
        });
        return isKnown ? value : QVariant();
    };
    state.value = knownOf(node);
    QVector<INode *> selectors;
    state.areSelectorsKnown = look([&] {
        selectors.clear();
        QVector<INode *> seen;
        addSelectors(node, seen, selectors);
    });
    for (INode *selector : std::as_const(selectors)) {
        const Setting setting{nameOf(selector), knownOf(selector)};
        state.areSelectorsKnown = state.areSelectorsKnown && setting.value.isValid();
        state.selectors.append(setting);
    }
    return state;
}

bool FeatureJournal::write(const Pointer &journal, const QString &feature, const QVariant &shown,
                           const QVariant &after, const std::function<bool()> &call)
{
    const Pointer kept = journal; // the call may end whoever has it
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
    if (!isAlive() || !node || m_isReplaying || !before.areSelectorsKnown)
        return;
    Change change;
    const bool isKnown = look([&] {
        change = {{nameOf(node), asValueOf(node, before.value)},
                  asValueOf(node, after),
                  before.selectors};
    });
    if (!isKnown || isSelector(node) || !change.before.value.isValid() || !change.after.isValid() ||
        change.before.value == change.after)
        return;
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

bool FeatureJournal::isOpen(quint64 gesture) const
{
    return !m_done.isEmpty() &&
           (m_isGroupOpen || (gesture != 0 && m_done.last().gesture == gesture));
}

/// What changes the same thing once more changes the change.
void FeatureJournal::add(const Change &change, Step &step)
{
    QVector<Change> &changes = step.changes;
    for (int i = int(changes.size()) - 1; i >= 0; --i) {
        Change &former = changes[i];
        if (former.before.feature == change.before.feature &&
            former.selectors == change.selectors) {
            former.after = change.after;
            if (former.after == former.before.value)
                changes.removeAt(i);
            return;
        }
        if (step.gesture == 0)
            break; // in a group the order may matter
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
                    .arg(textOf(changes.first().before.value), textOf(changes.last().after));
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
    if (!isAlive() || from.isEmpty() || m_isReplaying)
        return true;
    const Step step{from.last().changes, 0};
    try {
        const QScopedValueRollback<bool> replaying(m_isReplaying, true);
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

/// Counts those that are done, from the end when it goes back.
void FeatureJournal::applyAll(const QVector<Change> &changes, bool isBack, int &done)
{
    Detour detour(*this);
    const int count = int(changes.size());
    for (done = 0; done < count; ++done) {
        const Change &change = changes.at(isBack ? count - 1 - done : done);
        INode *const node = find(change.before.feature);
        detour.goTo(change.selectors);
        setValue(node, isBack ? change.before.value : change.after);
        detour.wrote(node);
    }
}

} // namespace OrvGui
