// SPDX-License-Identifier: MIT
#pragma once

#include "orvgenparamtreeview.h"
#include "treecells.h"

#include <QApplication>
#include <QTreeView>
#include <QWindow>
#include <QtTest>

/// Operates a visible tree as a user does. The events of mouse and keyboard pass through the
/// window-system layer of Qt.
class TreeDriver
{
public:
    explicit TreeDriver(OrvGui::OrvGenParamTreeView &view) : m_view(view) {}

    /// Expands everything at the highest level and waits until it is painted.
    void show()
    {
        m_view.setVisibility(OrvGui::Guru);
        m_view.resize(700, 600);
        m_view.show();
        m_view.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_view));
        tree().expandAll();
    }

    QTreeView &tree() const { return *m_view.treeView(); }

    QModelIndex cell(const char *feature, int column = 1) const
    {
        return cellOf(*tree().model(), QString::fromLatin1(feature), column);
    }

    QString text(const char *feature) const { return cell(feature).data().toString(); }

    void click(const char *feature, int column = 1)
    {
        const QModelIndex index = cell(feature, column);
        tree().scrollTo(index);
        const QRect rect = tree().visualRect(index);
        click(*tree().viewport(), QPoint(rect.left() + rect.width() / 3, rect.center().y()));
    }

    static void click(QWidget &widget, const QPoint &position)
    {
        QWindow *window = widget.window()->windowHandle();
        const QPoint inWindow = widget.mapTo(widget.window(), position);
        QTest::mouseMove(window, inWindow);
        QCoreApplication::processEvents();
        QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, inWindow);
        QCoreApplication::processEvents();
    }

    /// Turns the wheel by one notch towards the user.
    void turnWheel(const char *feature)
    {
        const QPoint inView =
            tree().viewport()->mapTo(&m_view, tree().visualRect(cell(feature)).center());
        QWheelEvent event(inView, m_view.mapToGlobal(inView), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(m_view.windowHandle(), &event); // sendEvent() would clear the flag
        QCoreApplication::processEvents();
    }

    void drag(const QPoint &from, const QPoint &to)
    {
        QWindow *window = m_view.windowHandle();
        const auto inWindow = [this](const QPoint &position) {
            return tree().viewport()->mapTo(&m_view, position);
        };
        QTest::mouseMove(window, inWindow(from));
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, inWindow(from));
        QTest::mouseMove(window, inWindow((from + to) / 2));
        QTest::mouseMove(window, inWindow(to));
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, inWindow(to));
        QCoreApplication::processEvents();
    }

    /// Sends keys to the widget that the window system would choose: the open list, if there is
    /// one.
    static void press(Qt::Key key)
    {
        QTest::keyPress(receiver(), key);
        QTest::keyRelease(receiver(), key); // the press may have closed the list
        QCoreApplication::processEvents();
    }
    static void type(const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(receiver(), character.toLatin1());
        QCoreApplication::processEvents();
    }

    /// The open editor of that class, or null.
    template<typename Editor>
    Editor *editor() const
    {
        for (Editor *child : tree().viewport()->findChildren<Editor *>()) {
            if (child->isVisible())
                return child;
        }
        return nullptr;
    }

    bool isEditing() const
    {
        const auto children =
            tree().viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        return std::any_of(children.begin(), children.end(),
                           [](QWidget *child) { return child->isVisible(); });
    }

private:
    static QWindow *receiver()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            return popup->windowHandle();
        // After a list has closed, Qt 6 may need an event of the X server first.
        if (!QTest::qWaitFor([] { return QGuiApplication::focusWindow() != nullptr; }))
            qFatal("No window has the focus");
        return QGuiApplication::focusWindow();
    }

    OrvGui::OrvGenParamTreeView &m_view;
};
