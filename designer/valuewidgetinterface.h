// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/** What Qt Designer has to know of one value widget. */
struct ValueWidgetDescription
{
    QString className;
    QString toolTip;
    QString whatsThis;
    QSize size; ///< On the form, when it has just been dropped there.
    QWidget *(*create)(QWidget *parent);
};

/** Offers one value widget in Qt Designer; its icon and its header are named like the class. */
class ValueWidgetInterface : public QDesignerCustomWidgetInterface
{
public:
    explicit ValueWidgetInterface(const ValueWidgetDescription &widgetDescription);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;

private:
    const ValueWidgetDescription description;
};
