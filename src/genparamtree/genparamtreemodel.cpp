// SPDX-License-Identifier: MIT
#include "genparamtree/genparamtreemodel_p.h"

#include "base/featuremetatype.h"
#include "base/genicamstring.h"
#include "base/ip4validator.h"
#include "base/macaddress.h"
#include "base/selectordetour.h"
#include "genparamtree/fixintegerrepresentation.h"
#include "genparamtree/parameterdescription.h"

#include <OrvGenParam/Array.h>
#include <OrvGenParam/LookAhead.h>

#include <QBrush>
#include <QMetaMethod>
#include <QPalette>
#include <QPointer>
#include <QStringList>
#include <QVector>

namespace {

constexpr int nameColumn = 0;
constexpr int valueColumn = 1;

QVariant longVariant(int64_t value)
{
    return QVariant::fromValue(static_cast<long>(value));
}

QVariant integerData(GenApi::IInteger &integer)
{
    const int64_t value = integer.GetValue(false, false);
    switch (FixIntegerRepresentation(&integer)) {
    case GenApi::IPV4Address:
        return IP4Validator::getIpStr(static_cast<unsigned int>(value));
    case GenApi::MACAddress:
        return macAddressText(static_cast<quint64>(value));
    case GenApi::HexNumber:
        return QString::number(static_cast<qulonglong>(value), 16).toUpper();
    default:
        return longVariant(value);
    }
}

QVariant enumerationData(GenApi::IEnumeration &enumeration, int role)
{
    if (role == Qt::EditRole)
        return longVariant(enumeration.GetIntValue(false, false));
    return fromUtf8(enumeration.ToString(false, false));
}

QVariant foregroundData(GenApi::EAccessMode mode, bool isCommand)
{
    if (mode == GenApi::RW || (isCommand && mode == GenApi::WO))
        return QVariant();
    return QPalette().brush(QPalette::Disabled, QPalette::Text);
}

void setInteger(GenApi::IInteger &integer, const QVariant &data)
{
    if (FixIntegerRepresentation(&integer) == GenApi::IPV4Address)
        integer.SetValue(IP4Validator::getIp(data.toString()), true);
    else
        integer.SetValue(data.toLongLong(), true);
}

void setEnumeration(GenApi::IEnumeration &enumeration, const QVariant &data)
{
    bool isNumber = false;
    const qlonglong number = data.toLongLong(&isNumber);
    if (isNumber)
        enumeration.SetIntValue(number, true);
    else
        enumeration.FromString(toUtf8(data.toString()), true);
}

} // namespace

// GenParamTreeModelPrivate

void GenParamTreeModelPrivate::Init(GenParamTreeModel *model)
{
    // dataChanged is queued when a node is changed on another thread.
    qRegisterMetaType<QVector<int>>("QVector<int>");
    q = model;
    try {
        const GenApi::CCategoryPtr root = CategoryFromIndex(QModelIndex());
        if (root)
            places.breakCycles(*root);
        RegisterCallbackForChildren(root);
    } catch (...) {
        DeRegisterCallbacks();
        throw;
    }
}

GenApi::IValue *GenParamTreeModelPrivate::valueFromIndex(const QModelIndex &index)
{
    return featureOf(index);
}

GenApi::CCategoryPtr GenParamTreeModelPrivate::CategoryFromIndex(const QModelIndex &index) const
{
    if (index.isValid())
        return GenApi::CCategoryPtr(static_cast<GenApi::IValue *>(index.internalPointer()));
    return GenApi::CCategoryPtr(nodeMap ? nodeMap->GetNode("Root") : nullptr);
}

void GenParamTreeModelPrivate::RegisterCallbackForChildren(const GenApi::CCategoryPtr &category)
{
    if (!category)
        return;

    const GenApi::FeatureList_t children = places.listOf(*category);
    for (size_t i = 0; i < children.size(); ++i) {
        callbackHandles.push_back(GenApi::Register(children[i]->GetNode(), *this,
                                                   &GenParamTreeModelPrivate::NodeCallback,
                                                   GenApi::cbPostOutsideLock));
        RegisterCallbackForChildren(GenApi::CCategoryPtr(children[i]));
    }
}

void GenParamTreeModelPrivate::DeRegisterCallbacks()
{
    for (const GenApi::CallbackHandleType handle : callbackHandles)
        GenApi::Deregister(handle);
    callbackHandles.clear();
}

void GenParamTreeModelPrivate::NodeCallback(GenApi::INode *node)
{
    const auto *value = dynamic_cast<GenApi::IValue *>(node);
    if (!value || OrvGui::SelectorDetour::isUnderWay())
        return;
    const QModelIndex cell = findIndexByValueClass(value, valueColumn);
    if (cell.isValid())
        emit q->dataChanged(cell, cell);
}

QModelIndex GenParamTreeModelPrivate::findIndexByValueClass(const GenApi::IValue *value,
                                                            int column) const
{
    const GenApi::CCategoryPtr root = CategoryFromIndex(QModelIndex());
    if (!root)
        return QModelIndex();
    const FeaturePlaces::Place place = places.find(value, *root);
    if (place.row < 0)
        return QModelIndex();
    if (column >= 0)
        return q->createIndex(place.row, column, const_cast<GenApi::IValue *>(value));
    return place.parent ? findIndexByValueClass(place.parent, nameColumn) : QModelIndex();
}

QVariant GenParamTreeModelPrivate::nameData(const QModelIndex &index, GenApi::INode *node,
                                            int role) const
{
    switch (role) {
    case Qt::DisplayRole: {
        const GenICam::gcstring displayName = node->GetDisplayName();
        return fromUtf8(displayName.empty() ? node->GetName(false) : displayName);
    }
    case Qt::ToolTipRole: {
        const GenICam::gcstring toolTip = node->GetToolTip();
        return toolTip.empty() ? q->data(index, Qt::DisplayRole) : fromUtf8(toolTip);
    }
    case Qt::BackgroundRole:
        if (node->GetPrincipalInterfaceType() == GenApi::intfICategory)
            return QPalette().brush(QPalette::Active, QPalette::Midlight);
        return QVariant();
    default:
        return QVariant();
    }
}

QVariant GenParamTreeModelPrivate::valueData(GenApi::IValue *value, int role)
{
    if (role != Qt::ForegroundRole && role != Qt::DisplayRole && role != Qt::EditRole)
        return QVariant();
    const GenApi::EInterfaceType type = value->GetNode()->GetPrincipalInterfaceType();
    if (type == GenApi::intfICategory)
        return QVariant();

    const bool isCommand = type == GenApi::intfICommand;
    const GenApi::EAccessMode mode = value->GetAccessMode();
    if (role == Qt::ForegroundRole)
        return foregroundData(mode, isCommand);
    if (mode == GenApi::NI || mode == GenApi::NA)
        return GenParamTreeModel::tr("<Value not available>");
    if (!isCommand && !GenApi::IsReadable(mode))
        return GenParamTreeModel::tr("<Value not readable>");

    switch (type) {
    case GenApi::intfIInteger:
        return integerData(*GenApi::CIntegerPtr(value));
    case GenApi::intfIBoolean:
        return GenApi::CBooleanPtr(value)->GetValue(false, false);
    case GenApi::intfICommand:
        return GenParamTreeModel::tr("Execute");
    case GenApi::intfIFloat:
        return GenApi::CFloatPtr(value)->GetValue(false, false);
    case GenApi::intfIString:
        return fromUtf8(GenApi::CStringPtr(value)->GetValue(false, false));
    case GenApi::intfIEnumeration:
        return enumerationData(*GenApi::CEnumerationPtr(value), role);
    default:
        return fromUtf8(value->ToString(false, false));
    }
}

QVariant GenParamTreeModelPrivate::WhatsThis(GenApi::IValue *value) const
{
    return parameterDescription(value);
}

bool GenParamTreeModelPrivate::write(GenApi::IValue *value, const QVariant &data)
{
    switch (value->GetNode()->GetPrincipalInterfaceType()) {
    case GenApi::intfIInteger:
        setInteger(*GenApi::CIntegerPtr(value), data);
        return true;
    case GenApi::intfIBoolean:
        GenApi::CBooleanPtr(value)->SetValue(data.toBool(), true);
        return true;
    case GenApi::intfICommand:
        GenApi::CCommandPtr(value)->Execute(true);
        return true;
    case GenApi::intfIFloat:
        GenApi::CFloatPtr(value)->SetValue(data.toDouble(), true);
        return true;
    case GenApi::intfIString:
        GenApi::CStringPtr(value)->SetValue(toUtf8(data.toString()), true);
        return true;
    case GenApi::intfIEnumeration:
        setEnumeration(*GenApi::CEnumerationPtr(value), data);
        return true;
    default:
        return false;
    }
}

QString GenParamTreeModelPrivate::text(GenApi::IValue *feature, bool mayWait) const
{
    QString text;
    const auto read = [&] {
        if (GenApi::IsReadable(feature->GetAccessMode()) &&
            !dynamic_cast<GenApi::ICommand *>(feature))
            text = fromUtf8(feature->ToString(false, false));
    };
    try {
        const auto *lookAhead = dynamic_cast<const OrvGenParam::LookAhead *>(nodeMap);
        const bool isKnown = lookAhead && lookAhead->look(read);
        if (!isKnown && (mayWait || !lookAhead))
            read();
    } catch (const GenICam::GenericException &) {
        return QString();
    }
    return text;
}

bool GenParamTreeModelPrivate::isObserved() const
{
    static const QMetaMethod writtenSignal = QMetaMethod::fromSignal(&GenParamTreeModel::written);
    static const QMetaMethod refusedSignal = QMetaMethod::fromSignal(&GenParamTreeModel::refused);
    return q->isSignalConnected(writtenSignal) || q->isSignalConnected(refusedSignal);
}

GenParamTreeModelPrivate::Outcome
GenParamTreeModelPrivate::carryOut(GenApi::IValue *feature, const std::function<bool()> &write,
                                   QString *reason)
{
    GenParamTreeModel *const model = q;
    const QPointer<GenParamTreeModel> alive(model); // a write may end the model, and so this object
    const bool isReported = isObserved();
    const QString before = isReported ? model->text(feature) : QString();
    if (isReported)
        emit model->aboutToWrite(feature);
    Outcome outcome = Refused;
    QString refusal;
    try {
        if (!GenApi::IsWritable(feature->GetAccessMode()))
            refusal = GenParamTreeModel::tr("The feature cannot be written at the moment.");
        else
            outcome = write() ? Written : NotWritable;
    } catch (const GenICam::GenericException &exception) {
        refusal = fromUtf8(GenICam::gcstring(exception.GetDescription()));
    } catch (...) {
        refusal = GenParamTreeModel::tr("The camera has refused the value.");
    }
    if (reason)
        *reason = refusal;
    if (!alive || !isReported)
        return outcome;
    if (outcome == Written)
        emit model->written(feature, before, model->text(feature));
    else if (outcome == Refused)
        emit model->refused(feature, refusal);
    return outcome;
}

// GenParamTreeModel

GenParamTreeModel::GenParamTreeModel(GenApi::INodeMap *nodeMap, QObject *parent)
    : QAbstractItemModel(parent), d(new GenParamTreeModelPrivate)
{
    d->nodeMap = nodeMap;
    d->Init(this);
}

GenParamTreeModel::GenParamTreeModel(OrvGenParam::Array *array, QObject *parent)
    : QAbstractItemModel(parent), d(new GenParamTreeModelPrivate)
{
    int32_t error = 0;
    d->nodeMap = array ? array->GetNodeMap(&error) : nullptr;
    d->Init(this);
}

GenParamTreeModel::~GenParamTreeModel()
{
    d->DeRegisterCallbacks();
}

QModelIndex GenParamTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column < 0 || column >= columnCount(parent) || parent.column() > nameColumn)
        return QModelIndex();
    const GenApi::CCategoryPtr category = d->CategoryFromIndex(parent);
    if (!category)
        return QModelIndex();

    GenApi::IValue *feature = d->places.at(*category, row);
    return feature ? createIndex(row, column, feature) : QModelIndex();
}

QModelIndex GenParamTreeModel::parent(const QModelIndex &index) const
{
    const GenApi::IValue *value = GenParamTreeModelPrivate::valueFromIndex(index);
    return value ? d->findIndexByValueClass(value, -1) : QModelIndex();
}

int GenParamTreeModel::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > nameColumn)
        return 0;
    const GenApi::CCategoryPtr category = d->CategoryFromIndex(parent);
    return category ? d->places.count(*category) : 0;
}

int GenParamTreeModel::columnCount(const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return 2;
}

QVariant GenParamTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    Q_UNUSED(orientation)
    if (role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case nameColumn:
        return tr("Name");
    case valueColumn:
        return tr("Value");
    default:
        return QVariant();
    }
}

Qt::ItemFlags GenParamTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;

    const Qt::ItemFlags readOnly = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (index.column() != valueColumn)
        return readOnly;
    try {
        const GenApi::IValue *value = GenParamTreeModelPrivate::valueFromIndex(index);
        if (value && GenApi::IsWritable(value->GetAccessMode()))
            return readOnly | Qt::ItemIsEditable;
    } catch (const GenICam::GenericException &) {
    }
    return readOnly;
}

QVariant GenParamTreeModel::data(const QModelIndex &index, int role) const
{
    auto *value = static_cast<GenApi::IValue *>(index.internalPointer());
    if (!index.isValid() || !value)
        return QVariant();
    try {
        if (role == Qt::WhatsThisRole)
            return d->WhatsThis(value);
        if (role == Qt::UserRole)
            return QVariant::fromValue(value);
        if (index.column() == nameColumn)
            return d->nameData(index, value->GetNode(), role);
        return GenParamTreeModelPrivate::valueData(value, role);
    } catch (const GenICam::GenericException &) {
        return QVariant();
    }
}

bool GenParamTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || index.column() != valueColumn)
        return false;

    // A host may replace the tree in its handler of the change.
    const QPointer<GenParamTreeModel> alive(this);
    try {
        GenApi::IValue *feature = GenParamTreeModelPrivate::valueFromIndex(index);
        if (!feature)
            return false;
        const auto write = [&] {
            if (!GenParamTreeModelPrivate::write(feature, value))
                return false;
            if (alive)
                emit dataChanged(index, index, {Qt::EditRole});
            return true;
        };
        return d->carryOut(feature, write) == GenParamTreeModelPrivate::Written;
    } catch (...) {
        return false;
    }
}

QString GenParamTreeModel::writeText(GenApi::IValue *feature, const QString &text)
{
    const auto write = [&] {
        if (auto *command = dynamic_cast<GenApi::ICommand *>(feature))
            command->Execute(true);
        else
            feature->FromString(toUtf8(text), true);
        return true;
    };
    QString reason;
    d->carryOut(feature, write, &reason);
    return reason;
}

QString GenParamTreeModel::text(GenApi::IValue *feature) const
{
    return d->text(feature, true);
}

QString GenParamTreeModel::knownText(GenApi::IValue *feature) const
{
    return d->text(feature, false);
}
