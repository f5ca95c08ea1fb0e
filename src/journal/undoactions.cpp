// SPDX-License-Identifier: MIT
#include "journal/undoactions.h"

#include "base/cameratext.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QWidget>

namespace OrvGui {

namespace {

/// The shortcut of the platform and the documented one.
QList<QKeySequence> keysOf(QKeySequence::StandardKey key, const char *always)
{
    QList<QKeySequence> keys = QKeySequence::keyBindings(key);
    const auto written = QKeySequence::fromString(QLatin1String(always));
    keys.removeAll(written);
    keys.prepend(written);
    return keys;
}

bool isModified(const QLineEdit *line)
{
    return line && line->isModified() && (line->isUndoAvailable() || line->isRedoAvailable());
}

/// Whether the user has typed a text that is not entered yet.
bool isTyping(const QObject *editor)
{
    if (const auto *real = qobject_cast<const QDoubleSpinBox *>(editor))
        return real->cleanText() != real->textFromValue(real->value());
    if (const auto *number = qobject_cast<const QSpinBox *>(editor)) {
        bool isNumber = false;
        const int typed = number->locale().toInt(number->cleanText(), &isNumber);
        return !isNumber || typed != number->value();
    }
    return isModified(qobject_cast<const QLineEdit *>(editor));
}

/// Escapes ampersands, which mark mnemonics in menus.
QString asEntry(const QString &text)
{
    return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

UndoActions::UndoActions(QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_undo(add(QStringLiteral("actionUndo"), keysOf(QKeySequence::Undo, "Ctrl+Z"),
                 &FeatureJournal::undo))
    , m_redo(add(QStringLiteral("actionRedo"), keysOf(QKeySequence::Redo, "Ctrl+Shift+Z"),
                 &FeatureJournal::redo))
{
    for (QWidget *widget : window->findChildren<QWidget *>())
        watch(widget);
    show();
}

void UndoActions::watch(QWidget *editor)
{
    const bool isLine =
        qobject_cast<QLineEdit *>(editor) && !qobject_cast<QAbstractSpinBox *>(editor->parent());
    if (isLine || qobject_cast<QAbstractSpinBox *>(editor))
        editor->installEventFilter(this);
}

void UndoActions::watchEditorsOf(const QAbstractItemView *view)
{
    m_viewport = view->viewport();
    m_viewport->installEventFilter(this);
}

/// Whether the user has typed a text that is not entered yet.
bool UndoActions::isPending(const QObject *editor) const
{
    const bool isOfSpinBox = qobject_cast<const QAbstractSpinBox *>(editor);
    if (m_viewport && editor->parent() == m_viewport && isOfSpinBox)
        return isModified(editor->findChild<QLineEdit *>());
    return isTyping(editor);
}

QAction *UndoActions::add(const QString &name, const QList<QKeySequence> &keys, Replay replay)
{
    auto *action = new QAction(m_window);
    action->setObjectName(name);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, [=] { run(replay); });
    m_window->addAction(action);
    return action;
}

void UndoActions::setJournal(const FeatureJournal::Pointer &journal)
{
    if (m_journal)
        disconnect(m_journal.get(), nullptr, this, nullptr);
    m_journal = journal;
    if (m_journal)
        connect(m_journal.get(), &FeatureJournal::changed, this, [this] { show(); });
    show();
}

void UndoActions::show()
{
    m_undo->setText(m_journal ? asEntry(m_journal->undoText()) : tr("Undo"));
    m_redo->setText(m_journal ? asEntry(m_journal->redoText()) : tr("Redo"));
    m_undo->setEnabled(m_journal && m_journal->canUndo());
    m_redo->setEnabled(m_journal && m_journal->canRedo());
}

void UndoActions::run(Replay replay)
{
    const QPointer<UndoActions> alive(this);
    emit triggered();
    if (!alive)
        return;
    const FeatureJournal::Pointer kept = m_journal; // a receiver may set another one
    if (!kept)
        return;
    const QPointer<QWidget> window(m_window);
    QString reason;
    if ((kept.get()->*replay)(&reason) || !window || m_journal != kept)
        return;
    report(replay == static_cast<Replay>(&FeatureJournal::undo), reason);
}

/// Reports a refused step, which the user can try again or skip to reach the step behind it.
void UndoActions::report(bool isUndo, const QString &reason)
{
    const QString step = isUndo ? m_journal->undoText() : m_journal->redoText();
    auto *box = new QMessageBox(QMessageBox::Warning, QString(),
                                tr("The camera refuses this step: %1").arg(step) +
                                    QStringLiteral("\n\n") + reason,
                                QMessageBox::Ok, m_window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    auto *skipping = box->addButton(tr("Skip This Step"), QMessageBox::DestructiveRole);
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(QMessageBox::Ok);
    const FeatureJournal *journal = m_journal.get();
    // Another step is the next one.
    connect(journal, &FeatureJournal::changed, box, &QWidget::close);
    connect(skipping, &QPushButton::clicked, this, [=] {
        if (m_journal.get() == journal)
            isUndo ? m_journal->skipUndo() : m_journal->skipRedo();
    });
    box->open();
}

// Line edits claim these keys even when they have nothing to undo.
bool UndoActions::eventFilter(QObject *editor, QEvent *event)
{
    if (event->type() == QEvent::ChildPolished) {
        auto *child = qobject_cast<QWidget *>(static_cast<QChildEvent *>(event)->child());
        if (child)
            watch(child);
        return false;
    }
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return false;
    const auto *key = static_cast<const QKeyEvent *>(event);
    const bool isOurs = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
    if (!isOurs || !m_journal || isPending(editor))
        return false;
    event->ignore();
    return true;
}

} // namespace OrvGui
