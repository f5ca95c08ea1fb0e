// SPDX-License-Identifier: MIT
#include "genparamtree/safedelegate.h"

#include "base/cameratext.h"
#include "base/featuremetatype.h"
#include "genparamtree/editorstate.h"
#include "genparamtree/featurecell.h"
#include "genparamtree/genparamtreemodel.h"
#include "genparamtree/treelookahead.h"
#include "widgets/valueaccessibility.h"

#include <GenApi/GenApi.h>

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QPointer>

namespace OrvGui {

bool SafeDelegate::ask(const GenApi::CValuePtr &node, const std::function<void()> &questions) const
{
    if (!m_lookAhead)
        return GenParamDelegate::ask(node, questions);
    const bool isKnown = m_lookAhead->look(node, TreeLookAhead::Everything, questions);
    m_hasMissed = m_hasMissed || !isKnown;
    return isKnown;
}

QWidget *SafeDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    try {
        QWidget *editor = nullptr;
        const auto create = [&] { editor = GenParamDelegate::createEditor(parent, option, index); };
        GenApi::IValue *feature = featureOf(index);
        if (feature && !ask(feature, create))
            return nullptr;
        if (!feature)
            create();
        const auto *list = qobject_cast<QComboBox *>(editor);
        if (list && list->count() == 0) {
            delete list;
            return named(createNote(parent), index);
        }
        if (editor)
            watch(editor, index);
        return named(editor, index);
    } catch (const GenICam::GenericException &) {
        return nullptr;
    }
}

/// Sets the accessible name of the editor, which may be null, to that of the feature.
QWidget *SafeDelegate::named(QWidget *editor, const QModelIndex &index)
{
    const QString name = cameraText(index.sibling(index.row(), 0).data().toString());
    if (auto *list = qobject_cast<QComboBox *>(editor))
        ValueAccessibility::setName(list, name);
    else if (editor)
        editor->setAccessibleName(name);
    return editor;
}

/// The editor for a list without entries.
QWidget *SafeDelegate::createNote(QWidget *parent)
{
    auto *note = new QLineEdit(parent);
    note->setFrame(false);
    note->setReadOnly(true);
    return note;
}

void SafeDelegate::watch(QWidget *editor, const QModelIndex &index) const
{
    auto *self = const_cast<SafeDelegate *>(this);
    auto *state = new EditorState(editor);
    connect(state, &EditorState::dismissed, self,
            [self, editor] { emit self->closeEditor(editor, RevertModelCache); });
    connect(state, &EditorState::tabbed, self, [self, editor](bool forward) {
        emit self->closeEditor(editor, forward ? EditNextItem : EditPreviousItem);
    });
    if (!m_lookAhead)
        return;
    const QPersistentModelIndex cell(index);
    connect(m_lookAhead, &TreeLookAhead::arrived, state, [this, state, editor, cell] {
        if (state->takeWaiting() && cell.isValid())
            setEditorData(editor, cell);
    });
}

void SafeDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    EditorState *state = EditorState::of(editor);
    if (!state) {
        auto *note = qobject_cast<QLineEdit *>(editor);
        if (note)
            note->setText(tr("%1 (no entry is available)").arg(index.data().toString()));
        return;
    }
    if (state->isTouched() || state->isListClosed())
        return;
    GenApi::IValue *feature = featureOf(index);
    if (m_lookAhead && feature && !m_lookAhead->knowsEverything(feature))
        return state->setWaiting();
    const QPointer<QComboBox> list(qobject_cast<QComboBox *>(editor));
    if (!fill(editor, index) && list)
        openList(list);
}

/// Returns false, and leaves the editor unchanged, when there is no value.
bool SafeDelegate::fill(QWidget *editor, const QModelIndex &index) const
{
    try {
        // When a value is not readable, the model returns a text in its place.
        const GenApi::CValuePtr feature(featureOf(index));
        bool isReadable = false;
        m_hasMissed = false;
        ask(feature, [&] { isReadable = GenApi::IsReadable(feature->GetAccessMode()); });
        if (!isReadable && !m_hasMissed)
            return false;
        if (!m_hasMissed) {
            const EditorState::Filling filling(EditorState::of(editor));
            GenParamDelegate::setEditorData(editor, index);
        }
        if (m_hasMissed)
            EditorState::of(editor)->setWaiting();
        return true;
    } catch (const GenICam::GenericException &) {
        return false;
    }
}

void SafeDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                const QModelIndex &index) const
{
    const QPointer<EditorState> state(EditorState::of(editor));
    if (!state || !state->isToBeWritten())
        return;
    GenParamDelegate::setModelData(editor, model, index);
    if (state)
        state->setWritten();
}

/// Also called for an editor whose row has been removed.
void SafeDelegate::destroyEditor(QWidget *editor, const QModelIndex &index) const
{
    if (EditorState *state = EditorState::of(editor))
        state->setOpen(false);
    GenParamDelegate::destroyEditor(editor, index);
}

bool SafeDelegate::eventFilter(QObject *watched, QEvent *event)
{
    auto *editor = qobject_cast<QWidget *>(watched);
    EditorState *state = editor ? EditorState::of(editor) : nullptr;
    if (state && event->type() == QEvent::InputMethod)
        state->setTouched();
    if (state && event->type() == QEvent::Wheel && !state->isTouched()) {
        event->ignore(); // the tree handles it
        return true;
    }
    if (state && event->type() == QEvent::KeyPress && state->isListClosed()) {
        emit closeEditor(editor, RevertModelCache);
        return true;
    }
    return GenParamDelegate::eventFilter(watched, event);
}

QString SafeDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    GenApi::IValue *feature = featureOf(m_painted);
    if (!m_lookAhead || !feature)
        return cameraText(featureText(feature, value, locale));
    QString text = value.toString();
    m_lookAhead->look(feature, TreeLookAhead::Cell,
                      [&] { text = featureText(feature, value, locale); });
    return cameraText(text);
}

void SafeDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    m_painted = index;
    GenParamDelegate::initStyleOption(option, index);
    m_painted = QModelIndex();
    styleFeatureCell(option, index);
}

} // namespace OrvGui
