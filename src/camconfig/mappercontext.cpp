// SPDX-License-Identifier: MIT
#include "camconfig/mappercontext.h"

#include "camconfig/orvcamconfigmapper.h"
#include "camconfig/showing.h"
#include "journal/featurejournal.h"
#include "widgets/heldinput.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam/Array.h>

#include <QMessageBox>
#include <QTimer>

#include <algorithm>
#include <utility>

using OrvGenParam::Param;

namespace OrvGui {

namespace {

void report(const QPointer<QObject> &object, const QString &text)
{
    HeldInput::end(object);
    QMessageBox::critical(nullptr, QString(), text, QMessageBox::Ok);
    // The groove of a slider starts to repeat after its first step only, that is now.
    if (object)
        QTimer::singleShot(0, object, [=] { HeldInput::end(object); });
}

} // namespace

MapperContext::MapperContext(qint64 cap, ShowBound showBound)
    : valueCap(cap), m_showBound(std::move(showBound))
{
}

MapperContext::~MapperContext() = default;

void MapperContext::setArray(const OrvGenParam::Array *array)
{
    int32_t error = OrvCam::Success;
    reader.setArray(array);
    journal = FeatureJournal::of(array ? array->GetNodeMap(&error) : nullptr);
    m_shown.clear();
}

void MapperContext::leaveMapper()
{
    m_showBound = nullptr;
    reader.setArray(nullptr);
}

void MapperContext::note(const Param *param, const QVariant &value)
{
    m_shown.insert(param, value);
}

QString MapperContext::refusalText(const OrvGenParam::Boolean *)
{
    return OrvCamConfigMapper::tr("Error while setting the %1 boolean value!\r\nError Code: %2");
}

QString MapperContext::refusalText(const OrvGenParam::Command *)
{
    return OrvCamConfigMapper::tr("Error while executing the %1 command!\r\nError Code: %2");
}

QString MapperContext::refusalText(const OrvGenParam::Enum *)
{
    return OrvCamConfigMapper::tr(
        "Error while setting the %1 enumeration value!\r\nError Code: %2");
}

QString MapperContext::refusalText(const OrvGenParam::Int *)
{
    return OrvCamConfigMapper::tr("Error while setting the %1 integer value!\r\nError Code: %2");
}

void MapperContext::write(QObject *object, const QString &refusalText, const Param *param,
                          const QVariant &value, const Write &call)
{
    if (isShownIn(object))
        return;
    // A receiver of the notification may destroy the mapper, the widget or the camera's array.
    const Pointer alive = shared_from_this();
    const QString name = QString::fromUtf8(param->GetName());
    const QPointer<QObject> widget(object);
    qint32 code = OrvCam::Success;
    const bool isAccepted = FeatureJournal::write(journal, name, m_shown.value(param), value, [&] {
        code = call();
        return code == OrvCam::Success;
    });
    if (isAccepted)
        note(param, value);
    else
        report(widget, refusalText.arg(name, QString::number(code)));
}

void MapperContext::endShowings(const QObject *object)
{
    for (Showing *showing : m_showings) {
        if (showing->object() == object)
            showing->end();
    }
}

bool MapperContext::isShownIn(const QObject *object) const
{
    return std::any_of(m_showings.begin(), m_showings.end(),
                       [=](const Showing *showing) { return showing->object() == object; });
}

} // namespace OrvGui
