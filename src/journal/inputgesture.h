// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace OrvGui {

/// The present gesture of the user: a mouse button from its press to its release, a key that
/// repeats while it is held, a wheel that is turned without a pause.
///
/// Use it to distinguish one change with many writes from many changes, on the GUI thread only.
class InputGesture : public QObject
{
    Q_OBJECT

public:
    /// The same number during one gesture, another one during the next; 0 outside of any.
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
    ulong m_time = 0; ///< of the event that has begun it
    bool m_isEnding = false;
    QElapsedTimer m_wheel;
};

} // namespace OrvGui
