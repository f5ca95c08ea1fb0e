// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

/// The view of a device tree. Even an interface without cameras has an arrow: a click on it, a
/// double click on the row or the right arrow key searches for cameras again.
class CameraTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit CameraTreeView(QWidget *parent = nullptr);

protected:
    void drawBranches(QPainter *painter, const QRect &rect,
                      const QModelIndex &index) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool isWithoutCameras(const QModelIndex &index) const;
    void searchAgain(const QModelIndex &interface);
};
