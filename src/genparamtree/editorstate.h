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

/// The state of an editor of the tree since it was filled with the camera's value: whether the user
/// has changed it, whether its content is to be written, and whether its list was dismissed.
///
/// A child of the editor. Fill the editor only while a `Filling` exists.
class EditorState : public QObject
{
    Q_OBJECT

public:
    /// While an instance exists, changes of the editor are attributed to the camera. The selection
    /// and the cursor are restored. The editor may be destroyed first.
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

    /// Until it is filled, a list has no current entry, and any choice counts as a change.
    explicit EditorState(QWidget *editor);

    /// Null for an editor without one.
    static EditorState *of(const QWidget *editor);

    /// Whether the tree shows the editor; set by the tree.
    bool isOpen() const { return m_isOpen; }
    void setOpen(bool on) { m_isOpen = on; }

    /// The value for the editor is not cached yet.
    void setWaiting() { m_isWaiting = true; }

    /// Returns whether the editor has been waiting, and clears the flag.
    bool takeWaiting() { return std::exchange(m_isWaiting, false); }

    /// True after the user has typed or stepped. Such an editor is no longer filled.
    bool isTouched() const { return m_isTouched; }

    /// For an input method, whose text is not in the editor until it is complete.
    void setTouched() { m_isTouched = true; }
    bool isToBeWritten() const;
    void setWritten();

    /// True after the list has closed, with or without a choice.
    bool isListClosed() const { return m_isListClosed; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The list has closed without a choice.
    void dismissed();

    /// Tab or Backtab was pressed in the list.
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
    QLineEdit *const m_lineEdit; ///< the editor or its child; null when nothing can be typed
    QVariant m_known;            ///< the value of the camera that was filled in
    QVariant m_latest;           ///< the content after the last step or valid typing
    bool m_isOpen = false;
    bool m_isWaiting = false;
    bool m_isBeingFilled = false;
    bool m_isTouched = false;
    bool m_isTyped = false;
    bool m_isTypingValid = true;
    bool m_isListClosed = false;
};

} // namespace OrvGui
