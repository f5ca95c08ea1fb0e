// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace OrvGui {

/// A label that draws a picture of the resources in the colours, the font and the language of its
/// form. The pixmap of the label is the bitmap of that name, which has fixed colours, size and
/// language.
///
/// Shows any other pixmap or text as a `QLabel` does.
class Diagram : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString picture READ picture WRITE setPicture)

public:
    explicit Diagram(QWidget *parent = nullptr);

    QString picture() const { return m_picture; }
    /// The name of a resource, such as ":/images/res/wdr.bmp". An unknown one is shown as it is.
    void setPicture(const QString &resource);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isDrawn() const;

    QString m_picture;
    qint64 m_bitmapKey = 0; ///< of the pixmap that the drawing replaces
};

} // namespace OrvGui
