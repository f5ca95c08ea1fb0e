// SPDX-License-Identifier: MIT
#include "controls.h"

#include "looks.h"

#include <QtWidgets>

namespace Controls {

namespace {

bool isVisiblePart(const QWidget &window, const QWidget *widget)
{
    return widget && widget->window() == &window && widget->isVisible();
}

// The name that a screen reader reads: that of the label, or else the object's own. The own name of
// a combo box may be only its current value.
QString accessibleName(QAccessibleInterface &interface)
{
    for (const auto &relation : interface.relations(QAccessible::Label)) {
        if (relation.first && relation.first->role() == QAccessible::StaticText)
            return relation.first->text(QAccessible::Name).trimmed();
    }
    const QString name = interface.text(QAccessible::Name).trimmed();
    const bool isContent = interface.role() == QAccessible::ComboBox &&
                           name == interface.text(QAccessible::Value).trimmed();
    return isContent ? QString() : name;
}

class NameChecker
{
public:
    explicit NameChecker(const QWidget &window) : m_window(window) {}

    void visit(QAccessibleInterface *interface, const QString &group)
    {
        auto *widget = interface ? qobject_cast<QWidget *>(interface->object()) : nullptr;
        if (!isVisiblePart(m_window, widget))
            return;
        const QString name = accessibleName(*interface);
        // The accessible states of views lack the focusable flag.
        const bool isFocusable =
            interface->state().focusable || qobject_cast<QAbstractItemView *>(widget);
        if (isFocusable && !widget->isWindow())
            checkName(*widget, *interface, group, name);
        // Parts of these represent the whole control, and children of views are rows.
        const QAccessible::Role role = interface->role();
        if (role == QAccessible::SpinBox || role == QAccessible::ComboBox)
            return;
        if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
            return visitEditors(*view, group + '/' + name);
        const bool isGroup = role == QAccessible::Grouping && !name.isEmpty();
        for (int i = 0; i < interface->childCount(); ++i)
            visit(interface->child(i), isGroup ? group + '/' + name : group);
    }

    QStringList faults;

private:
    void visitEditors(const QAbstractItemView &view, const QString &group)
    {
        for (QObject *child : view.viewport()->children()) {
            if (child->isWidgetType())
                visit(QAccessible::queryAccessibleInterface(child), group);
        }
    }

    void checkName(const QWidget &widget, QAccessibleInterface &interface, const QString &group,
                   const QString &name)
    {
        if (name.isEmpty())
            faults << Looks::nameOf(widget) + " has no name";
        const QString key = QString("%1/%2 %3").arg(group, name).arg(interface.role());
        if (!name.isEmpty() && m_known.contains(key))
            faults << QString("%1 has the name of %2: %3")
                          .arg(Looks::nameOf(widget), m_known.value(key), name);
        m_known.insert(key, Looks::nameOf(widget));
    }

    const QWidget &m_window;
    QMap<QString, QString> m_known; ///< widget by group, name and role
};

/// Finds letters that several actions or widgets share.
class Mnemonics
{
public:
    explicit Mnemonics(const QString &place) : m_place(place) {}

    void add(const QString &text)
    {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (key.isEmpty())
            return;
        if (m_known.contains(key))
            faults << QString("%1 in %2: %3, %4")
                          .arg(key.toString(), m_place, m_known.value(key), text);
        m_known.insert(key, text);
    }

    QStringList faults;

private:
    const QString m_place;
    QMap<QKeySequence, QString> m_known;
};

QStringList sharedIn(const QMenu &menu)
{
    Mnemonics mnemonics(menu.title());
    QStringList faults;
    for (const QAction *action : menu.actions()) {
        mnemonics.add(action->text());
        if (action->menu())
            faults << sharedIn(*action->menu());
    }
    return faults + mnemonics.faults;
}

} // namespace

QString spokenNameOf(QWidget &control)
{
    return accessibleName(*QAccessible::queryAccessibleInterface(&control));
}

QStringList namelessOf(QWidget &window)
{
    NameChecker checker(window);
    checker.visit(QAccessible::queryAccessibleInterface(&window), QString());
    return checker.faults;
}

QStringList tabOrderFaultsOf(QWidget &window)
{
    QStringList faults;
    const QWidget *last = nullptr;
    for (const QWidget *next = window.nextInFocusChain(); next != &window;
         next = next->nextInFocusChain()) {
        const bool isStop = (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
        if (!isStop || next->focusProxy() || !isVisiblePart(window, next))
            continue;
        const auto placeOf = [&](const QWidget *widget) {
            QRect place(widget->mapTo(&window, QPoint()), widget->size());
            if (window.isRightToLeft())
                place.moveLeft(window.width() - place.x() - place.width());
            return place;
        };
        if (last) {
            const QRect from = placeOf(last);
            const QRect to = placeOf(next);
            const bool isAbove = to.bottom() < from.top();
            const bool isBelow = to.top() > from.bottom();
            const bool goesUp = isAbove && to.left() <= from.right();
            const bool goesBack = !isAbove && !isBelow && to.right() < from.left();
            if (goesUp || goesBack)
                faults << QString("Tab goes %1 from %2 to %3")
                              .arg(QLatin1String(goesUp ? "up" : "back"), Looks::nameOf(*last),
                                   Looks::nameOf(*next));
        }
        last = next;
    }
    return faults;
}

QStringList sharedMnemonicsOf(QWidget &window)
{
    Mnemonics mnemonics(window.windowTitle());
    QStringList faults;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!isVisiblePart(window, widget))
            continue;
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            if (label->buddy())
                mnemonics.add(label->text());
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            mnemonics.add(button->text());
        } else if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
            mnemonics.add(box->title());
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                mnemonics.add(tabs->tabText(i));
        } else if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
            for (const QAction *action : bar->actions()) {
                mnemonics.add(action->text());
                if (action->menu())
                    faults << sharedIn(*action->menu());
            }
        }
    }
    return faults + mnemonics.faults;
}

} // namespace Controls
