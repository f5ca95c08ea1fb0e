// SPDX-License-Identifier: MIT
#include "genparamtree/editorstate.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaProperty>
#include <QSignalBlocker>
#include <QSpinBox>

namespace OrvGui {

namespace {

QLineEdit *lineEditOf(QWidget *editor)
{
    auto *lineEdit = qobject_cast<QLineEdit *>(editor);
    return lineEdit ? lineEdit : editor->findChild<QLineEdit *>();
}

/// Without prefix and suffix.
QString textOf(const QWidget *editor, const QLineEdit *lineEdit)
{
    const auto *spinBox = qobject_cast<const QSpinBox *>(editor);
    const auto *doubleSpinBox = qobject_cast<const QDoubleSpinBox *>(editor);
    if (spinBox)
        return spinBox->cleanText();
    return doubleSpinBox ? doubleSpinBox->cleanText() : lineEdit->text();
}

void selectAll(QWidget *editor, QLineEdit *lineEdit)
{
    if (auto *spinBox = qobject_cast<QAbstractSpinBox *>(editor))
        spinBox->selectAll(); // without the suffix
    else
        lineEdit->selectAll();
}

// QVariant's comparison is fuzzy for floating-point numbers.
bool isSame(const QVariant &a, const QVariant &b)
{
    return a.userType() == QMetaType::Double ? a.toDouble() == b.toDouble() : a == b;
}

} // namespace

// EditorState::Filling

EditorState::Filling::Filling(EditorState *state) : m_state(state)
{
    state->m_isBeingFilled = true;
    const QLineEdit *lineEdit = state->m_lineEdit;
    if (!lineEdit)
        return;
    m_isAllSelected = lineEdit->selectedText() == textOf(state->m_editor, lineEdit);
    m_selectionStart = lineEdit->selectionStart();
    m_selectionLength = int(lineEdit->selectedText().size());
    m_cursor = lineEdit->cursorPosition();
}

EditorState::Filling::~Filling()
{
    if (!m_state)
        return;
    if (QLineEdit *lineEdit = m_state->m_lineEdit) {
        const int length = int(lineEdit->text().size());
        if (m_isAllSelected)
            selectAll(m_state->m_editor, lineEdit);
        else if (m_selectionStart >= 0 && m_selectionStart <= length)
            lineEdit->setSelection(m_selectionStart, m_selectionLength);
        else
            lineEdit->setCursorPosition(qMin(m_cursor, length));
    }
    m_state->m_known = m_state->m_latest = m_state->content();
    m_state->m_isBeingFilled = false;
}

// EditorState

EditorState::EditorState(QWidget *editor)
    : QObject(editor), m_editor(editor), m_lineEdit(lineEditOf(editor))
{
    if (auto *comboBox = qobject_cast<QComboBox *>(editor))
        watchList(comboBox);
    if (m_lineEdit)
        connect(m_lineEdit, &QLineEdit::textEdited, this, &EditorState::noteTyping);
    if (auto *spinBox = qobject_cast<QSpinBox *>(editor)) {
        const auto changed = static_cast<void (QSpinBox::*)(int)>(&QSpinBox::valueChanged);
        connect(spinBox, changed, this, &EditorState::noteStep);
    }
    if (auto *spinBox = qobject_cast<QDoubleSpinBox *>(editor)) {
        const auto changed =
            static_cast<void (QDoubleSpinBox::*)(double)>(&QDoubleSpinBox::valueChanged);
        connect(spinBox, changed, this, &EditorState::noteStep);
    }
    m_known = m_latest = content();
}

EditorState *EditorState::of(const QWidget *editor)
{
    return editor->findChild<EditorState *>(QString(), Qt::FindDirectChildrenOnly);
}

void EditorState::watchList(QComboBox *list)
{
    const QSignalBlocker blocker(list);
    list->setCurrentIndex(-1);
    list->view()->installEventFilter(this);
    list->view()->window()->installEventFilter(this);
}

bool EditorState::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && qobject_cast<QWidget *>(watched)->isWindow()) {
        m_isListClosed = true;
        // A chosen entry becomes the current one only after the list has closed.
        QMetaObject::invokeMethod(this, "reportClosedList", Qt::QueuedConnection);
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
            emit tabbed(key == Qt::Key_Tab);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void EditorState::reportClosedList()
{
    emit dismissed(); // closed by a choice, the editor is no longer connected
}

void EditorState::noteTyping()
{
    m_isTouched = true;
    m_isTypingValid = m_lineEdit->hasAcceptableInput();
    m_isTyped = m_isTyped || m_isTypingValid;
}

void EditorState::noteStep()
{
    // A spin box replaces invalid input by its previous value when it is entered.
    if (m_isBeingFilled || isSame(content(), m_latest))
        return;
    m_latest = content();
    m_isTouched = true;
    m_isTypingValid = true;
}

bool EditorState::isAcceptable() const
{
    const auto *lineEdit = qobject_cast<const QLineEdit *>(m_editor);
    return lineEdit ? lineEdit->hasAcceptableInput() : m_isTypingValid;
}

bool EditorState::isToBeWritten() const
{
    // A combo box commits whenever its entry changes, even if the camera has changed it.
    if (m_isBeingFilled || !isAcceptable())
        return false;
    // The user has typed the same value again, which is written, too.
    return m_isTyped || m_editor->isWindowModified() || !isSame(content(), m_known);
}

void EditorState::setWritten()
{
    m_isTouched = m_isTyped = false;
    m_known = m_latest = content();
}

QVariant EditorState::content() const
{
    return m_editor->metaObject()->userProperty().read(m_editor);
}

} // namespace OrvGui
