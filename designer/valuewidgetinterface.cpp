// SPDX-License-Identifier: MIT
#include "valuewidgetinterface.h"

#include <QCoreApplication>
#include <QIcon>

ValueWidgetInterface::ValueWidgetInterface(const ValueWidgetDescription &widgetDescription)
    : description(widgetDescription)
{
}

QString ValueWidgetInterface::name() const
{
    return description.className;
}

QString ValueWidgetInterface::group() const
{
    return QCoreApplication::translate("ValueWidgetInterface", "Camera Value Widgets");
}

QString ValueWidgetInterface::toolTip() const
{
    return description.toolTip;
}

QString ValueWidgetInterface::whatsThis() const
{
    return description.whatsThis;
}

QString ValueWidgetInterface::includeFile() const
{
    return description.className.toLower() + QStringLiteral(".h");
}

QIcon ValueWidgetInterface::icon() const
{
    return QIcon(QStringLiteral(":/orvcameraguiapidesigner/icons/%1.png")
                     .arg(description.className.toLower()));
}

bool ValueWidgetInterface::isContainer() const
{
    return false;
}

QWidget *ValueWidgetInterface::createWidget(QWidget *parent)
{
    return description.create(parent);
}

QString ValueWidgetInterface::domXml() const
{
    QString objectName = description.className;
    objectName[0] = objectName.at(0).toLower();
    return QStringLiteral("<ui language=\"c++\">"
                          "<widget class=\"%1\" name=\"%2\">"
                          "<property name=\"geometry\"><rect>"
                          "<x>0</x><y>0</y><width>%3</width><height>%4</height>"
                          "</rect></property>"
                          "</widget>"
                          "</ui>")
        .arg(description.className, objectName)
        .arg(description.size.width())
        .arg(description.size.height());
}
