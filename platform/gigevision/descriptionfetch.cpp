// SPDX-License-Identifier: MIT
#include "descriptionfetch.h"

#include "descriptionstore.h"
#include "descriptionunpacker.h"
#include "descriptionurl.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <tuple>
#include <vector>

namespace OrvGigEVision {

using OrvCameraIo::Status;

namespace {

using Failure = FetchedDescription::Failure;
using Progress = std::function<void(std::size_t, std::size_t)>;

constexpr std::size_t blockSize = Gvcp::maxMemorySize;

/// A single block that is lost repeatedly must not make the whole download fail.
constexpr int attempts = 2;

bool readBlock(GvcpChannel &channel, uint32_t address, uint32_t size, std::string &bytes,
               Failure &failure)
{
    // Memory is read in words.
    const uint32_t start = address & ~3u;
    const uint32_t end = (address + size + 3) & ~3u; // 0 after the last word
    std::string words(end - start, '\0');
    auto *data = reinterpret_cast<uint8_t *>(&words[0]);
    GvcpChannel::Reply reply;
    for (int i = 0; i < attempts && !reply.isDone(); ++i)
        reply = channel.readMemory(start, end - start, data);
    if (!reply.isDone()) {
        failure = isAnswer(reply.status) ? Failure::Unusable : Failure::NoAnswer;
        return false;
    }
    bytes = words.substr(address - start, size);
    return true;
}

/// The blocks in which a description is read. The first one is shorter when the description is not
/// aligned, so that all others are.
std::vector<std::pair<std::size_t, std::size_t>> blocksOf(const DescriptionUrl &url)
{
    std::vector<std::pair<std::size_t, std::size_t>> blocks;
    for (std::size_t at = 0; at < url.size; at += blocks.back().second) {
        const std::size_t most = blockSize - (url.address + at) % 4;
        blocks.emplace_back(at, std::min(most, url.size - at));
    }
    return blocks;
}

std::string untilZero(const std::string &bytes)
{
    return bytes.substr(0, bytes.find('\0'));
}

/// Cameras with the same description that are open at the same time share its text.
std::shared_ptr<const std::string> shared(std::string text)
{
    static std::mutex mutex;
    static std::vector<std::weak_ptr<const std::string>> texts;

    const std::lock_guard<std::mutex> lock(mutex);
    const auto isGone = [](const auto &weak) { return weak.expired(); };
    texts.erase(std::remove_if(texts.begin(), texts.end(), isGone), texts.end());
    for (const auto &weak : texts) {
        auto present = weak.lock();
        if (present && *present == text)
            return present;
    }
    auto result = std::make_shared<const std::string>(std::move(text));
    texts.push_back(result);
    return result;
}

/// Reads one description.
class Fetch
{
public:
    Fetch(GvcpChannel &channel, const Gvcp::Identity &identity, uint32_t urlRegister,
          std::function<bool()> isCancelled)
        : m_channel(channel), m_isCancelled(std::move(isCancelled))
    {
        m_result.mark.vendor = identity.manufacturer;
        m_result.mark.model = identity.model;
        m_result.mark.version = identity.version;
        m_result.mark.urlRegister = urlRegister;
    }

    /// Reads the fingerprint of the description; returns false when there is none.
    bool readMark();

    FetchedDescription run(const Progress &progress);

    const DescriptionMark &mark() const { return m_result.mark; }

private:
    bool read(uint32_t address, std::size_t size, std::string &bytes);
    bool readAll(std::string &bytes, const Progress &progress);
    bool unpack(const std::string &bytes);
    std::optional<std::string> kept(const DescriptionStore &store,
                                    const DescriptionStore::Key &key) const;
    bool fail(Failure failure, const std::string &message);

    GvcpChannel &m_channel;
    const std::function<bool()> m_isCancelled;
    DescriptionUrl m_url;
    FetchedDescription m_result;
};

bool Fetch::fail(Failure failure, const std::string &message)
{
    m_result.failure = failure;
    m_result.message = message;
    return false;
}

bool Fetch::read(uint32_t address, std::size_t size, std::string &bytes)
{
    if (m_isCancelled && m_isCancelled())
        return fail(Failure::Cancelled, "Opening the camera was cancelled.");
    Failure failure = Failure::None;
    if (readBlock(m_channel, address, static_cast<uint32_t>(size), bytes, failure))
        return true;
    return fail(failure, failure == Failure::NoAnswer
                             ? "The camera does not answer any more."
                             : "The camera refuses to give its description.");
}

bool Fetch::readMark()
{
    DescriptionMark &mark = m_result.mark;
    std::string text;
    if (!read(mark.urlRegister, Gvcp::urlSize, text))
        return false;
    m_url = DescriptionUrl::parse(untilZero(text));
    if (!m_url.problem.empty())
        return fail(Failure::Unusable, m_url.problem);
    mark.url = m_url.text;

    const auto blocks = blocksOf(m_url);
    if (!read(m_url.address, blocks.front().second, mark.firstBlock))
        return false;
    const auto [at, size] = blocks.back();
    return at == 0 || read(m_url.address + static_cast<uint32_t>(at), size, mark.lastBlock);
}

bool Fetch::readAll(std::string &bytes, const Progress &progress)
{
    const auto blocks = blocksOf(m_url);
    bytes = m_result.mark.firstBlock;
    for (std::size_t i = 1; i + 1 < blocks.size(); ++i) {
        if (progress)
            progress(bytes.size(), m_url.size);
        std::string block;
        const auto [at, size] = blocks[i];
        if (!read(m_url.address + static_cast<uint32_t>(at), size, block))
            return false;
        bytes += block;
    }
    bytes += m_result.mark.lastBlock;
    if (progress)
        progress(bytes.size(), m_url.size);
    return true;
}

bool Fetch::unpack(const std::string &bytes)
{
    UnpackedDescription unpacked = unpackDescription(bytes);
    if (!unpacked.problem.empty())
        return fail(Failure::Unusable, unpacked.problem);
    m_result.failure = Failure::None;
    m_result.message.clear();
    m_result.text = shared(std::move(unpacked.text));
    return true;
}

std::optional<std::string> Fetch::kept(const DescriptionStore &store,
                                       const DescriptionStore::Key &key) const
{
    auto bytes = store.find(key);
    if (!bytes)
        return std::nullopt;
    const std::string &first = m_result.mark.firstBlock;
    const std::string &last = m_result.mark.lastBlock;
    const bool isSame = bytes->compare(0, first.size(), first) == 0 &&
                        bytes->compare(bytes->size() - last.size(), last.size(), last) == 0;
    return isSame ? std::move(bytes) : std::nullopt;
}

FetchedDescription Fetch::run(const Progress &progress)
{
    if (!readMark())
        return m_result;
    const DescriptionMark &mark = m_result.mark;
    const auto store = DescriptionStore::ofUser();
    const DescriptionStore::Key key{mark.vendor, mark.model, mark.version, mark.url, m_url.size};
    const auto present = kept(store, key);
    if (present && unpack(*present))
        return m_result;

    std::string bytes;
    if (readAll(bytes, progress) && unpack(bytes))
        store.keep(key, bytes);
    return m_result;
}

} // namespace

bool DescriptionMark::operator==(const DescriptionMark &other) const
{
    const auto all = [](const DescriptionMark &mark) {
        return std::tie(mark.vendor, mark.model, mark.version, mark.urlRegister, mark.url,
                        mark.firstBlock, mark.lastBlock);
    };
    return all(*this) == all(other);
}

FetchedDescription fetchDescription(GvcpChannel &channel, const Gvcp::Identity &identity,
                                    const Progress &progress,
                                    const std::function<bool()> &isCancelled)
{
    FetchedDescription first = Fetch(channel, identity, Gvcp::FirstUrl, isCancelled).run(progress);
    if (first.failure != Failure::Unusable)
        return first;
    FetchedDescription second =
        Fetch(channel, identity, Gvcp::SecondUrl, isCancelled).run(progress);
    // Most cameras have one URL only, so its error is the relevant one.
    if (second.failure == Failure::Unusable)
        second.message = first.message;
    return second;
}

bool hasDescription(GvcpChannel &channel, const Gvcp::Identity &identity,
                    const DescriptionMark &mark, const std::function<bool()> &isCancelled)
{
    Fetch fetch(channel, identity, mark.urlRegister, isCancelled);
    return fetch.readMark() && fetch.mark() == mark;
}

} // namespace OrvGigEVision
