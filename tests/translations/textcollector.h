// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QTabBar>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QWidget>

const char *const textProperties[] = {
    "windowTitle",           "toolTip", "statusTip", "whatsThis",      "accessibleName",
    "accessibleDescription", "text",    "title",     "prefix",         "suffix",
    "specialValueText",      "html",    "plainText", "placeholderText"};

class TextCollector
{
public:
    QStringList texts;

    void object(const QObject &object)
    {
        m_path = pathOf(object);
        for (const char *property : textProperties)
            add(object.property(property).toString());
        if (auto *box = qobject_cast<const QComboBox *>(&object))
            items(*box->model());
        if (auto *view = qobject_cast<const QAbstractItemView *>(&object))
            items(view->model());
        if (auto *tabs = qobject_cast<const QTabBar *>(&object)) {
            for (int i = 0; i < tabs->count(); ++i) {
                add(tabs->tabText(i));
                add(tabs->tabToolTip(i));
            }
        }
    }

private:
    static QString pathOf(const QObject &object)
    {
        QString path;
        for (const QObject *o = &object; o; o = o->parent())
            path.prepend(
                '/' + (o->objectName().isEmpty() ? o->metaObject()->className() : o->objectName()));
        return path;
    }

    void items(const QAbstractItemModel *model)
    {
        if (model)
            items(*model);
    }

    void items(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
    {
        const int columns = model.columnCount(parent);
        for (int column = 0; column < columns && !parent.isValid(); ++column)
            add(model.headerData(column, Qt::Horizontal).toString());
        for (int row = 0; row < model.rowCount(parent); ++row) {
            for (int column = 0; column < columns; ++column) {
                const QModelIndex index = model.index(row, column, parent);
                for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::StatusTipRole,
                                       Qt::WhatsThisRole, Qt::AccessibleTextRole})
                    add(index.data(role).toString());
            }
            items(model, model.index(row, 0, parent));
        }
    }

    void add(const QString &text)
    {
        const QString plain =
            Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
        if (!plain.trimmed().isEmpty())
            texts.append(m_path + '|' + plain);
    }

    QString m_path;
};

/// All visible and accessible texts of a window, as plain text: those of widgets, actions, headers,
/// items, tool tips and accessibility. Each is preceded by the path of its object and a "|".
inline QStringList textsOf(const QWidget &window)
{
    TextCollector collector;
    collector.object(window);
    for (const QObject *child : window.findChildren<QObject *>())
        collector.object(*child);
    collector.texts.removeDuplicates();
    return collector.texts;
}
