// SPDX-License-Identifier: MIT
#include "settings/usersets.h"

#include "base/genicamstring.h"
#include "base/selectorsinuse.h"
#include "settings/featurevalue.h"
#include "settings/orvcamerasettings.h"
#include "settings/settingselectors.h"

#include <OrvGenParam/LookAhead.h>

namespace OrvGui {

namespace {

constexpr char selectorName[] = "UserSetSelector";

} // namespace

bool UserSets::has(const char *command) const
{
    return enumeration(selectorName) &&
           dynamic_cast<GenApi::ICommand *>(m_map.GetNode(command)) != nullptr;
}

GenApi::IEnumeration *UserSets::enumeration(const char *name) const
{
    return dynamic_cast<GenApi::IEnumeration *>(m_map.GetNode(name));
}

GenApi::IEnumeration *UserSets::starter() const
{
    GenApi::IEnumeration *found = enumeration("UserSetDefault");
    return found ? found : enumeration("UserSetDefaultSelector"); // name before SFNC 2.0
}

QStringList UserSets::entriesOf(GenApi::IEnumeration *enumeration)
{
    QStringList names;
    GenApi::NodeList_t entries;
    if (enumeration)
        enumeration->GetEntries(entries);
    for (size_t i = 0; i < entries.size(); ++i) {
        if (auto *entry = dynamic_cast<GenApi::IEnumEntry *>(entries[i]))
            names << fromUtf8(entry->GetSymbolic());
    }
    return names;
}

QStringList UserSets::names() const
{
    return entriesOf(enumeration(selectorName));
}

QStringList UserSets::startNames() const
{
    return entriesOf(starter());
}

QString UserSets::knownStart() const
{
    GenApi::IEnumeration *found = starter();
    QString name;
    const auto read = [&] { name = fromUtf8(found->ToString()); };
    try {
        const auto *lookAhead = dynamic_cast<OrvGenParam::LookAhead *>(&m_map);
        if (found && lookAhead)
            lookAhead->look(read);
        else if (found)
            read();
    } catch (const GenICam::GenericException &) {
        name.clear();
    }
    return name;
}

QString UserSets::startWith(const QString &name)
{
    GenApi::IEnumeration *found = starter();
    try {
        FeatureValue::write(found, name);
        return QString();
    } catch (const GenICam::GenericException &exception) {
        return FeatureValue::reason(found, exception);
    }
}

QString UserSets::execute(const char *command, const QString &name)
{
    const SelectorsInUse inUse(&m_map);
    SettingSelectors moves(m_map);
    QString error = moves.select({{QString::fromLatin1(selectorName), name}});
    if (error.isEmpty())
        OrvCameraSettings::execute(m_map, QString::fromLatin1(command), &error);
    return error;
}

} // namespace OrvGui
