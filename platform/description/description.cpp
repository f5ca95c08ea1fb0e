// SPDX-License-Identifier: MIT
#include "description.h"

#include "descriptionreader.h"

#include <cameraio/limits.h>

#include <algorithm>
#include <cstring>
#include <mutex>
#include <unordered_map>

namespace Limits = OrvCameraIo::Limits;

namespace OrvDescription {

namespace {

constexpr std::size_t blockSize = 64 << 10;

/// The descriptions in use, by the hash of their text.
class Registry
{
public:
    std::shared_ptr<const Description> get(std::string_view xml, const std::string &source)
    {
        const std::size_t hash = std::hash<std::string_view>()(xml);
        // Parsed under the lock: cameras with the same description are often opened at the same
        // time.
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto range = m_descriptions.equal_range(hash);
        for (auto entry = range.first; entry != range.second;) {
            const std::shared_ptr<const Description> known = entry->second.lock();
            if (known && known->xml() == xml)
                return known;
            entry = known ? std::next(entry) : m_descriptions.erase(entry);
        }
        auto read = std::make_shared<const Description>(xml, source);
        m_descriptions.emplace(hash, read);
        return read;
    }

private:
    std::mutex m_mutex;
    std::unordered_multimap<std::size_t, std::weak_ptr<const Description>> m_descriptions;
};

} // namespace

const std::vector<DescriptionProperty> &DescriptionProperty::properties() const
{
    static const std::vector<DescriptionProperty> none;
    return extras ? extras->properties : none;
}

const DescriptionProperty *DescriptionNode::find(std::string_view wanted) const
{
    const auto found =
        std::find_if(properties.begin(), properties.end(),
                     [&](const DescriptionProperty &property) { return property.tag == wanted; });
    return found == properties.end() ? nullptr : &*found;
}

std::string_view DescriptionNode::text(std::string_view wanted, std::string_view fallback) const
{
    const DescriptionProperty *property = find(wanted);
    return property ? property->text : fallback;
}

Description::Description(std::string_view xml, const std::string &source)
    : m_xml(xml.substr(0, Limits::descriptionSize + 1))
{
    DescriptionReader(*this, source).read();
}

std::shared_ptr<const Description> Description::shared(std::string_view xml,
                                                       const std::string &source)
{
    static Registry registry;
    return registry.get(xml, source);
}

std::string_view Description::keep(std::string_view text)
{
    if (text.empty())
        return {};
    if (text.size() > blockSize / 4) {
        // A long text gets a block of its own, before the one that is being filled.
        auto block = std::make_unique<char[]>(text.size());
        std::memcpy(block.get(), text.data(), text.size());
        const std::string_view kept(block.get(), text.size());
        m_blocks.insert(m_blocks.begin(), std::move(block));
        return kept;
    }
    if (m_blockUsed + text.size() > blockSize || m_blockUsed == 0) {
        m_blocks.push_back(std::make_unique<char[]>(blockSize));
        m_blockUsed = 0;
    }
    char *const target = m_blocks.back().get() + m_blockUsed;
    std::memcpy(target, text.data(), text.size());
    m_blockUsed += text.size();
    return {target, text.size()};
}

} // namespace OrvDescription
