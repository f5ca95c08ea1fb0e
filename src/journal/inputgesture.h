// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace OrvGui {

/// The present input gesture: a mouse button from press to release, a key that repeats while it is
/// held, wheel events without a pause.
///
/// Distinguishes one change with many writes from many changes. Use it on the GUI thread only.
class InputGesture : public QObject
{
    Q_OBJECT

public:
    /// A number that is constant during a gesture and different for the next one; 0 without a
    /// gesture.
    static quint64 current();

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    enum Input { None, Mouse, Key, Wheel };

    explicit InputGesture(QObject *parent);
    bool isDragging() const;
    void begin(Input input, int code, ulong time);
    void end(Input input, int code = 0);

    quint64 m_number = 0;
    Input m_input = None;
    int m_code = 0;   ///< of the key
    ulong m_time = 0; ///< of the event that started it
    bool m_isEnding = false;
    QElapsedTimer m_wheel;
};

} // namespace OrvGui
