// SPDX-License-Identifier: MIT
#pragma once

#include "valuewidgetinterface.h"

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <memory>
#include <vector>

/** The plugin: a collection of all value widgets, for Qt Designer and QUiLoader. */
class ValueWidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)

public:
    explicit ValueWidgetCollection(QObject *parent = nullptr);

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    std::vector<std::unique_ptr<ValueWidgetInterface>> interfaces;
};
