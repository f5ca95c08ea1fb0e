// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QVariant>

#include <utility>

class QComboBox;
class QLineEdit;
class QWidget;

namespace OrvGui {

/// What has happened to an editor of the tree since the camera's value was put into it: whether the
/// user has touched it, whether what it holds is to be written, and whether its list was dismissed.
///
/// A child of the editor. Fill the editor only while a `Filling` lives.
class EditorState : public QObject
{
    Q_OBJECT

public:
    /// While one lives, changes of the editor are the camera's. The selection and the cursor stay
    /// where the user has left them. The editor may go before it.
    class Filling
    {
    public:
        explicit Filling(EditorState *state);
        ~Filling();
        Q_DISABLE_COPY(Filling)

    private:
        QPointer<EditorState> m_state;
        bool m_isAllSelected = false;
        int m_selectionStart = -1;
        int m_selectionLength = 0;
        int m_cursor = 0;
    };

    /// A list has no current entry until it is filled: any choice is a change then.
    explicit EditorState(QWidget *editor);

    /// Null for an editor without a state.
    static EditorState *of(const QWidget *editor);

    /// Whether the tree shows it; the tree sets this.
    bool isOpen() const { return m_isOpen; }
    void setOpen(bool on) { m_isOpen = on; }

    /// The value to fill it with is not known yet.
    void setWaiting() { m_isWaiting = true; }

    /// Whether it has been waiting, which it no longer is.
    bool takeWaiting() { return std::exchange(m_isWaiting, false); }

    /// True once the user has typed or stepped; such an editor is no longer filled.
    bool isTouched() const { return m_isTouched; }

    /// For an input method, whose text is not in the editor before it is complete.
    void setTouched() { m_isTouched = true; }
    bool isToBeWritten() const;
    void setWritten();

    /// True once the list has been closed, with or without a choice.
    bool isListClosed() const { return m_isListClosed; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The list was closed and nothing chosen.
    void dismissed();

    /// Tab was pressed in the list, or Backtab.
    void tabbed(bool forward);

private slots:
    void reportClosedList();

private:
    void watchList(QComboBox *list);
    void noteTyping();
    void noteStep();
    bool isAcceptable() const;
    QVariant content() const;

    QWidget *const m_editor;
    QLineEdit *const m_lineEdit; ///< the editor, or in it; null when nothing can be typed
    QVariant m_known;            ///< what the camera's value filled in
    QVariant m_latest;           ///< after the last step or valid typing
    bool m_isOpen = false;
    bool m_isWaiting = false;
    bool m_isBeingFilled = false;
    bool m_isTouched = false;
    bool m_isTyped = false;
    bool m_isTypingValid = true;
    bool m_isListClosed = false;
};

} // namespace OrvGui
