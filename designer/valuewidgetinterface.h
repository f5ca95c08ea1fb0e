// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/** The description of one value widget for Qt Designer. */
struct ValueWidgetDescription
{
    QString className;
    QString toolTip;
    QString whatsThis;
    QSize size; ///< The initial size on a form.
    QWidget *(*create)(QWidget *parent);
};

/** Provides one value widget to Qt Designer; its icon and its header are named like the class. */
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
