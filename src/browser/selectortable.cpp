// SPDX-License-Identifier: MIT
#include "browser/selectortable.h"

#include "base/cameratext.h"
#include "base/genicamstring.h"
#include "base/screenroom.h"
#include "base/selectormove.h"
#include "base/selectors.h"
#include "genparamtree/genparamdelegate.h"
#include "genparamtree/genparamtreemodel.h"

#include <GenApi/GenApi.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>

#include <utility>

namespace OrvGui {

namespace {

// The size of the window in lines of text.
constexpr int linesOfWidth = 32;
constexpr int linesOfHeight = 21;

constexpr int textRole = Qt::UserRole; ///< of a cell: the value in GenICam's format

QString nameOf(GenApi::IValue *feature)
{
    GenApi::INode *node = feature->GetNode();
    const GenICam::gcstring displayName = node->GetDisplayName();
    return cameraText(fromUtf8(displayName.empty() ? node->GetName(false) : displayName),
                      LongestName);
}

/// The captions of the choices with their values in GenICam's format; empty for a value that is
/// typed.
QVector<std::pair<QString, QString>> choicesOf(GenApi::IValue *feature)
{
    QVector<std::pair<QString, QString>> choices;
    if (auto *enumeration = dynamic_cast<GenApi::IEnumeration *>(feature)) {
        GenApi::StringList_t symbolics;
        enumeration->GetSymbolics(symbolics);
        for (std::size_t i = 0; i < symbolics.size(); ++i)
            choices.append({cameraText(fromUtf8(symbolics[i])), fromUtf8(symbolics[i])});
    } else if (dynamic_cast<GenApi::IBoolean *>(feature)) {
        choices.append({GenParamDelegate::tr("False"), QStringLiteral("0")});
        choices.append({GenParamDelegate::tr("True"), QStringLiteral("1")});
    }
    return choices;
}

/// The selector and the features that it selects.
QVector<GenApi::IValue *> movingWith(GenApi::IValue *selector)
{
    QVector<GenApi::IValue *> moving = {selector};
    try {
        for (GenApi::IValue *feature : selectedBy(selector))
            moving.append(feature);
    } catch (const GenICam::GenericException &) {
        // The description contradicts itself.
    }
    return moving;
}

} // namespace

/// Edits the value of a cell as text, or by a list of entries.
class SelectorTableDelegate : public QStyledItemDelegate
{
public:
    explicit SelectorTableDelegate(SelectorTable *table)
        : QStyledItemDelegate(table), m_table(table)
    {
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override
    {
        Q_UNUSED(option)
        const auto choices = choicesOf(m_table->m_columns.at(index.column()));
        if (choices.isEmpty())
            return new QLineEdit(parent);
        auto *box = new QComboBox(parent);
        for (const auto &[text, value] : choices)
            box->addItem(text, value);
        return box;
    }

    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        const QString text = index.data(textRole).toString();
        if (auto *line = qobject_cast<QLineEdit *>(editor))
            line->setText(text);
        else if (auto *box = qobject_cast<QComboBox *>(editor))
            box->setCurrentIndex(box->findData(text == QLatin1String("true") ? QStringLiteral("1")
                                               : text == QLatin1String("false")
                                                   ? QStringLiteral("0")
                                                   : text));
    }

    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override
    {
        Q_UNUSED(model)
        const auto *line = qobject_cast<QLineEdit *>(editor);
        const auto *box = qobject_cast<QComboBox *>(editor);
        const QString text = line ? line->text() : box ? box->currentData().toString() : QString();
        if (!text.isNull() && text != index.data(textRole).toString())
            m_table->enter(index.row(), index.column(), text);
    }

private:
    SelectorTable *const m_table;
};

SelectorTable::SelectorTable(GenApi::INodeMap *nodeMap, GenParamTreeModel &features,
                             BrowserModel &shown, GenApi::IValue *selector,
                             const QVector<GenApi::IValue *> &columns, QWidget *parent)
    : QDialog(parent)
    , m_nodeMap(nodeMap)
    , m_features(features)
    , m_shown(shown)
    , m_selector(selector)
    , m_columns(columns)
    , m_table(new QTableWidget(this))
    , m_note(new QLabel(this))
{
    setObjectName(QStringLiteral("SelectorTable"));
    setWindowTitle(tr("Values by %1").arg(nameOf(selector)));
    setModal(true);
    buildWindow();
    readAgain();
}

SelectorTable::~SelectorTable()
{
    m_reader.reset(); // blocks until the selector is restored
    if (isReading())
        endReading();
}

void SelectorTable::buildWindow()
{
    m_table->setAccessibleName(windowTitle());
    m_table->setItemDelegate(new SelectorTableDelegate(this));
    m_table->setColumnCount(int(m_columns.size()));
    QStringList names;
    for (GenApi::IValue *feature : m_columns)
        names << nameOf(feature);
    m_table->setHorizontalHeaderLabels(names);
    m_note->setWordWrap(true);
    m_note->setTextFormat(Qt::PlainText);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_readAgain = buttons->addButton(tr("Read Again"), QDialogButtonBox::ActionRole);
    for (QAbstractButton *button : buttons->buttons()) {
        if (auto *push = qobject_cast<QPushButton *>(button))
            push->setAutoDefault(false); // Return is for the cells
    }
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_readAgain, &QPushButton::clicked, this, &SelectorTable::readAgain);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_note);
    layout->addWidget(m_table);
    layout->addWidget(buttons);
    const int line = fontMetrics().height();
    resize(QSize(linesOfWidth * line, linesOfHeight * line).boundedTo(roomFor(this).size()));
}

void SelectorTable::readAgain()
{
    if (isReading())
        return;
    m_readAgain->setEnabled(false);
    m_table->setEnabled(false);
    m_note->setText(tr("Reading…"));
    m_shown.freeze(movingWith(m_selector));
    m_detour.emplace();
    m_inUse.emplace(m_nodeMap);
    m_reader = std::make_unique<SelectorReader>(m_nodeMap, m_selector, m_columns);
    connect(m_reader.get(), &QThread::finished, this, &SelectorTable::showRows);
    m_reader->start();
}

/// Runs when the selector has been restored and the other windows can be used again.
void SelectorTable::reject()
{
    if (isReading()) {
        m_isToBeClosed = true;
        m_reader->requestInterruption();
    } else {
        QDialog::reject();
    }
}

void SelectorTable::endReading()
{
    m_inUse.reset();
    m_detour.reset();
    m_shown.thaw();
}

void SelectorTable::showRows()
{
    endReading();
    if (m_isToBeClosed)
        return QDialog::reject();
    const QVector<SelectorReader::Row> &rows = m_reader->rows();
    m_entries.clear();
    m_table->setRowCount(int(rows.size()));
    for (int row = 0; row < int(rows.size()); ++row) {
        m_entries << rows.at(row).entry;
        for (int column = 0; column < int(m_columns.size()); ++column) {
            showCell(row, column, rows.at(row).cells.at(column));
            if (!rows.at(row).refusal.isEmpty())
                mark(row, column, rows.at(row).refusal);
        }
    }
    QStringList names;
    for (const QString &entry : std::as_const(m_entries))
        names << cameraText(entry, LongestName);
    m_table->setVerticalHeaderLabels(names);
    m_table->resizeColumnsToContents();
    m_table->setEnabled(true);
    m_table->setFocus(); // the table lost the focus when it was disabled
    m_readAgain->setEnabled(true);
    const QString failure = m_reader->failure();
    m_note->setText(failure.isNull()
                        ? tr("A value that you enter is written at once.")
                        : tr("The camera cannot be read: %1").arg(cameraText(failure)));
}

void SelectorTable::showCell(int row, int column, const SelectorReader::Cell &cell)
{
    auto *item = new QTableWidgetItem(cameraText(cell.shown));
    item->setData(textRole, cell.text);
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (cell.isWritable)
        flags |= Qt::ItemIsEditable;
    else
        item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
    item->setFlags(flags);
    m_table->setItem(row, column, item);
}

void SelectorTable::mark(int row, int column, const QString &reason)
{
    QTableWidgetItem *item = m_table->item(row, column);
    item->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    item->setToolTip(literally(cameraText(reason)));
    m_note->setText(tr("Refused: %1").arg(cameraText(reason)));
}

void SelectorTable::enter(int row, int column, const QString &text)
{
    if (isReading())
        return;
    const QPointer<SelectorTable> alive(this); // a host may replace the tree in its handler
    GenApi::IValue *feature = m_columns.at(column);
    QString value = text;
    if (dynamic_cast<GenApi::IFloat *>(feature))
        value.replace(QString(locale().decimalPoint()), QStringLiteral("."));
    QString reason;
    SelectorReader::Cell cell;
    try {
        SelectorMove move;
        move.moveTo(m_selector, m_entries.at(row));
        reason = m_features.writeText(feature, value);
        cell = SelectorReader::read(feature);
    } catch (const GenICam::GenericException &exception) {
        reason = fromUtf8(GenICam::gcstring(exception.GetDescription()));
    }
    if (!alive)
        return;
    if (!cell.shown.isNull())
        showCell(row, column, cell);
    m_note->setText(tr("A value that you enter is written at once."));
    if (!reason.isEmpty())
        mark(row, column, reason);
}

} // namespace OrvGui
