// SPDX-License-Identifier: MIT
#include "genparamtree/genparamdelegate.h"

#include "base/cameratext.h"
#include "base/featuremetatype.h"
#include "base/genicamstring.h"
#include "base/ip4validator.h"
#include "genparamtree/fixintegerrepresentation.h"
#include "genparamtree/floateditor.h"
#include "genparamtree/genparamtreemodel.h"

#include <GenApi/GenApi.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QIcon>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QSpinBox>

#include <algorithm>
#include <cstdint>

namespace {

constexpr int64_t spinBoxMax = 0x7fffffff;

GenApi::CValuePtr nodeOf(const QModelIndex &index)
{
    return GenApi::CValuePtr(featureOf(index));
}

bool isIpAddress(const GenApi::CIntegerPtr &integer)
{
    return FixIntegerRepresentation(integer) == GenApi::IPV4Address;
}

void setDisplayBase(QSpinBox *spinBox, GenApi::ERepresentation representation)
{
    if (representation == GenApi::PureNumber)
        spinBox->setDisplayIntegerBase(10);
    else if (representation == GenApi::HexNumber)
        spinBox->setDisplayIntegerBase(16);
}

bool wasClosed(const QComboBox *comboBox)
{
    // A widget that has never been shown is hidden, too, but not explicitly.
    return comboBox->isHidden() && comboBox->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

} // namespace

GenParamDelegate::GenParamDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

QWidget *GenParamDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const GenApi::CValuePtr node = nodeOf(index);
    switch (node ? node->GetNode()->GetPrincipalInterfaceType() : GenApi::intfIBase) {
    case GenApi::intfIInteger:
        return createIntegerEditor(parent, option, index, node);
    case GenApi::intfIBoolean:
        return createBooleanEditor(parent, option, index, node);
    case GenApi::intfICommand:
        return createCommandEditor(parent, option, index, node);
    case GenApi::intfIFloat:
        return createFloatEditor(parent, option, index, node);
    case GenApi::intfIEnumeration:
        return createEnumerationEditor(parent, option, index, node);
    default:
        break;
    }
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (editor)
        captureMouseForEditor(editor);
    return editor;
}

void GenParamDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const GenApi::CValuePtr node = nodeOf(index);
    switch (node ? node->GetNode()->GetPrincipalInterfaceType() : GenApi::intfIBase) {
    case GenApi::intfIInteger:
        return setIntegerEditorData(editor, index, node);
    case GenApi::intfIBoolean:
        return setBooleanEditorData(editor, index, node);
    case GenApi::intfIFloat:
        return setFloatEditorData(editor, index, node);
    case GenApi::intfIEnumeration:
        return setEnumerationEditorData(editor, index, node);
    default:
        return QStyledItemDelegate::setEditorData(editor, index);
    }
}

void GenParamDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    if (const auto *comboBox = qobject_cast<QComboBox *>(editor)) {
        model->setData(index, comboBox->currentData(Qt::UserRole), Qt::EditRole);
    } else if (const auto *spinBox = qobject_cast<QSpinBox *>(editor)) {
        model->setData(index, spinBox->value(), Qt::EditRole);
    } else if (const auto *doubleSpinBox = qobject_cast<QDoubleSpinBox *>(editor)) {
        model->setData(index, doubleSpinBox->value(), Qt::EditRole);
    } else if (auto *button = qobject_cast<QPushButton *>(editor)) {
        if (!button->isWindowModified())
            return;
        const QPointer<QPushButton> alive(button);
        model->setData(index, true, Qt::EditRole);
        if (alive)
            button->setWindowModified(false);
    } else {
        QStyledItemDelegate::setModelData(editor, model, index);
    }
}

void GenParamDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    Q_UNUSED(index)
    editor->setGeometry(option.rect);
}

QWidget *GenParamDelegate::createIntegerEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                               const QModelIndex &index,
                                               const GenApi::CValuePtr &node) const
{
    const GenApi::CIntegerPtr integer(node);
    if (!integer)
        return nullptr;
    if (isIpAddress(integer))
        return createIPAddressEditor(parent, option, index, node);

    const QString unit = OrvGui::cameraText(fromUtf8(integer->GetUnit()), OrvGui::LongestName);
    const GenApi::EIncMode incMode = integer->GetIncMode();
    if (incMode == GenApi::listIncrement) {
        const GenApi::int64_autovector_t values = integer->GetListOfValidValues(true);
        ComboBoxEntries entries;
        for (size_t i = 0; i < values.size(); ++i) {
            const qlonglong value = values[i];
            entries.append({QString::number(value) + unit, value});
        }
        return createComboBox(parent, entries);
    }

    QScopedPointer<QSpinBox> spinBox(new QSpinBox(parent));
    setDisplayBase(spinBox.data(), FixIntegerRepresentation(integer));
    spinBox->setFrame(false);
    // A minimum beyond 32 bits is truncated, not clamped as the maximum is.
    spinBox->setRange(static_cast<int>(integer->GetMin()),
                      static_cast<int>(std::min(integer->GetMax(), spinBoxMax)));
    spinBox->setSuffix(unit);
    spinBox->setAccelerated(true);
    if (incMode == GenApi::fixedIncrement)
        spinBox->setSingleStep(static_cast<int>(integer->GetInc()));
    captureMouseForEditor(spinBox.data());
    return spinBox.take();
}

QWidget *GenParamDelegate::createFloatEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                             const QModelIndex &index,
                                             const GenApi::CValuePtr &node) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    const GenApi::CFloatPtr number(node);
    if (!number)
        return nullptr;

    const QString unit = OrvGui::cameraText(fromUtf8(number->GetUnit()), OrvGui::LongestName);
    const GenApi::EIncMode incMode = number->GetIncMode();
    if (incMode == GenApi::listIncrement) {
        const GenApi::double_autovector_t values = number->GetListOfValidValues(true);
        ComboBoxEntries entries;
        for (size_t i = 0; i < values.size(); ++i)
            entries.append({QString::number(values[i], 'g', 6) + unit, values[i]});
        return createComboBox(parent, entries);
    }

    QScopedPointer<QDoubleSpinBox> spinBox(new OrvGui::FloatEditor(parent));
    spinBox->setFrame(false);
    spinBox->setRange(number->GetMin(), number->GetMax());
    spinBox->setSuffix(unit);
    if (incMode == GenApi::fixedIncrement)
        spinBox->setSingleStep(number->GetInc());
    captureMouseForEditor(spinBox.data());
    return spinBox.take();
}

QWidget *GenParamDelegate::createBooleanEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                               const QModelIndex &index,
                                               const GenApi::CValuePtr &node) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    if (!GenApi::CBooleanPtr(node))
        return nullptr;
    return createComboBox(parent, {{tr("True"), true}, {tr("False"), false}});
}

QWidget *GenParamDelegate::createEnumerationEditor(QWidget *parent,
                                                   const QStyleOptionViewItem &option,
                                                   const QModelIndex &index,
                                                   const GenApi::CValuePtr &node) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    const GenApi::CEnumerationPtr enumeration(node);
    if (!enumeration)
        return nullptr;

    GenApi::NodeList_t nodes;
    enumeration->GetEntries(nodes);
    ComboBoxEntries entries;
    for (size_t i = 0; i < nodes.size(); ++i) {
        const GenApi::CEnumEntryPtr entry(nodes[i]);
        if (entry && GenApi::IsAvailable(entry->GetAccessMode())) {
            const qlonglong value = entry->GetValue();
            entries.append(
                {OrvGui::cameraText(fromUtf8(entry->GetSymbolic()), OrvGui::LongestName), value});
        }
    }
    return createComboBox(parent, entries);
}

QWidget *GenParamDelegate::createCommandEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                               const QModelIndex &index,
                                               const GenApi::CValuePtr &node) const
{
    Q_UNUSED(option)
    if (!GenApi::CCommandPtr(node))
        return nullptr;
    auto *button = new QPushButton(index.data(Qt::DecorationRole).value<QIcon>(),
                                   index.data(Qt::DisplayRole).toString(), parent);
    auto *self = const_cast<GenParamDelegate *>(this);
    connect(button, &QPushButton::clicked, self, [self, button] {
        button->setWindowModified(true);
        emit self->commitData(button);
    });
    return button;
}

QWidget *GenParamDelegate::createIPAddressEditor(QWidget *parent,
                                                 const QStyleOptionViewItem &option,
                                                 const QModelIndex &index,
                                                 const GenApi::CValuePtr &node) const
{
    Q_UNUSED(option)
    Q_UNUSED(index)
    if (!GenApi::CIntegerPtr(node))
        return nullptr;
    auto *lineEdit = new QLineEdit(parent);
    lineEdit->setObjectName(QStringLiteral("ipAddressLineEdit"));
    lineEdit->setFrame(true);
    lineEdit->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    lineEdit->setValidator(new IP4Validator(lineEdit));
    captureMouseForEditor(lineEdit);
    return lineEdit;
}

bool GenParamDelegate::ask(const GenApi::CValuePtr &node,
                           const std::function<void()> &questions) const
{
    Q_UNUSED(node)
    questions();
    return true;
}

void GenParamDelegate::openList(QComboBox *comboBox)
{
    // While a choice is being written, the change notification of the node calls this, and the list
    // must not open again. Reopening an open list would reset the user's position in it.
    if (!comboBox->isWindowModified() && !wasClosed(comboBox) && !comboBox->view()->isVisible())
        comboBox->showPopup();
}

void GenParamDelegate::openListAt(QComboBox *comboBox, const QVariant &value)
{
    const QPointer<QComboBox> alive(comboBox);
    comboBox->setCurrentIndex(comboBox->findData(value, Qt::UserRole));
    if (alive) // the new index may have closed the editor
        openList(comboBox);
}

void GenParamDelegate::setIntegerEditorData(QWidget *editor, const QModelIndex &index,
                                            const GenApi::CValuePtr &node) const
{
    const GenApi::CIntegerPtr integer(node);
    if (!integer)
        return;
    if (isIpAddress(integer))
        return setIPAddressEditorData(editor, index, node);

    bool isList = false;
    int64_t value = 0;
    const bool isAnswered = ask(node, [&] {
        isList = integer->GetIncMode() == GenApi::listIncrement;
        value = integer->GetValue(false, false);
    });
    if (!isAnswered)
        return;
    if (isList) {
        if (auto *comboBox = qobject_cast<QComboBox *>(editor))
            openListAt(comboBox, static_cast<qlonglong>(value));
    } else if (auto *spinBox = qobject_cast<QSpinBox *>(editor)) {
        spinBox->setValue(static_cast<int>(value));
    }
}

void GenParamDelegate::setFloatEditorData(QWidget *editor, const QModelIndex &index,
                                          const GenApi::CValuePtr &node) const
{
    Q_UNUSED(index)
    const GenApi::CFloatPtr number(node);
    if (!number)
        return;
    bool isList = false;
    double value = 0;
    const bool isAnswered = ask(node, [&] {
        isList = number->GetIncMode() == GenApi::listIncrement;
        value = number->GetValue(false, false);
    });
    if (!isAnswered)
        return;
    if (isList) {
        if (auto *comboBox = qobject_cast<QComboBox *>(editor))
            openListAt(comboBox, value);
    } else if (auto *spinBox = qobject_cast<QDoubleSpinBox *>(editor)) {
        spinBox->setValue(value);
    }
}

void GenParamDelegate::setBooleanEditorData(QWidget *editor, const QModelIndex &index,
                                            const GenApi::CValuePtr &node) const
{
    Q_UNUSED(index)
    const GenApi::CBooleanPtr boolean(node);
    auto *comboBox = qobject_cast<QComboBox *>(editor);
    bool value = false;
    if (boolean && comboBox && ask(node, [&] { value = boolean->GetValue(false, false); }))
        openListAt(comboBox, value);
}

void GenParamDelegate::setEnumerationEditorData(QWidget *editor, const QModelIndex &index,
                                                const GenApi::CValuePtr &node) const
{
    Q_UNUSED(index)
    const GenApi::CEnumerationPtr enumeration(node);
    auto *comboBox = qobject_cast<QComboBox *>(editor);
    qlonglong value = 0;
    if (enumeration && comboBox &&
        ask(node, [&] { value = enumeration->GetIntValue(false, false); }))
        openListAt(comboBox, value);
}

void GenParamDelegate::setIPAddressEditorData(QWidget *editor, const QModelIndex &index,
                                              const GenApi::CValuePtr &node) const
{
    Q_UNUSED(index)
    const GenApi::CIntegerPtr integer(node);
    auto *lineEdit = qobject_cast<QLineEdit *>(editor);
    int64_t ip = 0;
    if (integer && lineEdit && ask(node, [&] { ip = integer->GetValue(false, false); }))
        lineEdit->setText(IP4Validator::getIpStr(static_cast<unsigned int>(ip)));
}

QComboBox *GenParamDelegate::createComboBox(QWidget *parent, const ComboBoxEntries &entries) const
{
    auto *comboBox = new QComboBox(parent);
    comboBox->setFrame(false);
    for (const auto &entry : entries)
        comboBox->addItem(entry.first, entry.second);

    const QPointer<GenParamDelegate> self(const_cast<GenParamDelegate *>(this));
    const auto currentIndexChanged =
        static_cast<void (QComboBox::*)(int)>(&QComboBox::currentIndexChanged);
    connect(comboBox, currentIndexChanged, self.data(), [self, comboBox] {
        // A handler of the write may destroy the view, the editor and this object.
        const QPointer<QComboBox> alive(comboBox);
        comboBox->setWindowModified(true);
        emit self->commitData(comboBox);
        if (alive)
            comboBox->setWindowModified(false);
        if (self && alive)
            emit self->closeEditor(comboBox, NoHint);
    });
    return comboBox;
}

void GenParamDelegate::captureMouseForEditor(QWidget *editor) const
{
    QCoreApplication::instance()->installEventFilter(new MouseTracker(editor));
}

// GenParamDelegate::MouseTracker

GenParamDelegate::MouseTracker::MouseTracker(QWidget *editor) : QObject(editor), m_editor(editor) {}

bool GenParamDelegate::MouseTracker::eventFilter(QObject *watched, QEvent *event)
{
    const bool consumed = QObject::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress && !m_editor->testAttribute(Qt::WA_UnderMouse)) {
        QCoreApplication::instance()->removeEventFilter(this);
        m_editor->clearFocus(); // commits and closes the editor
    }
    return consumed;
}
