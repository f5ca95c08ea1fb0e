// SPDX-License-Identifier: MIT
#include "journal/inputgesture.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

namespace OrvGui {

namespace {

/// The longest pause between two wheel events of one gesture.
constexpr int wheelPause = 500; // ms

const QKeyEvent *keyEvent(const QEvent *event)
{
    return static_cast<const QKeyEvent *>(event);
}

ulong timeOf(const QEvent *event)
{
    return static_cast<ulong>(static_cast<const QInputEvent *>(event)->timestamp());
}

} // namespace

InputGesture::InputGesture(QObject *parent) : QObject(parent)
{
    parent->installEventFilter(this);
}

quint64 InputGesture::current()
{
    static QPointer<InputGesture> only;
    if (!QCoreApplication::instance())
        return 0;
    if (!only)
        only = new InputGesture(QCoreApplication::instance());
    const bool isOver =
        only->m_input == None || (only->m_input == Wheel && only->m_wheel.elapsed() > wheelPause);
    return isOver ? 0 : only->m_number;
}

bool InputGesture::eventFilter(QObject *receiver, QEvent *event)
{
    if (!receiver->isWidgetType())
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        begin(Mouse, 0, timeOf(event));
        break;
    case QEvent::MouseButtonRelease:
        end(Mouse);
        break;
    case QEvent::KeyPress:
        // A modifier may be pressed during a drag.
        if (!keyEvent(event)->isAutoRepeat() && !isDragging())
            begin(Key, keyEvent(event)->key(), timeOf(event));
        break;
    case QEvent::KeyRelease:
        if (!keyEvent(event)->isAutoRepeat())
            end(Key, keyEvent(event)->key());
        break;
    case QEvent::Wheel:
        if (m_input != Wheel || m_wheel.elapsed() > wheelPause)
            begin(Wheel, 0, timeOf(event));
        m_wheel.start();
        break;
    default:
        break;
    }
    return false;
}

/// The release event may not have reached a widget.
bool InputGesture::isDragging() const
{
    return m_input == Mouse && !m_isEnding && QGuiApplication::mouseButtons() != Qt::NoButton;
}

void InputGesture::begin(Input input, int code, ulong time)
{
    // Each widget to which an event is propagated calls this filter again.
    if (m_input == input && m_code == code && m_time == time && !m_isEnding && input != Wheel)
        return;
    ++m_number;
    m_input = input;
    m_code = code;
    m_time = time;
    m_isEnding = false;
}

// The writes that a release causes belong to the gesture.
void InputGesture::end(Input input, int code)
{
    if (m_input != input || m_code != code)
        return;
    m_isEnding = true;
    const quint64 number = m_number;
    QTimer::singleShot(0, this, [=] {
        if (m_number == number)
            m_input = None;
    });
}

} // namespace OrvGui
