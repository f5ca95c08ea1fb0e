// SPDX-License-Identifier: MIT
#include "fetchahead.h"

#include "maincontext.h"

#include <algorithm>
#include <chrono>

using OrvGenApi::Question;

namespace OrvCameraIo {

namespace {

/// More than the depth of references in any description.
constexpr int maxRounds = 100;

/// A fetch may take longer than the time for which a volatile value counts as cached. Values that
/// it has read count as cached for this time after its end.
constexpr std::chrono::seconds fetchedAge{1};

} // namespace

/// The objects that the rounds use; empty after the destruction.
struct FetchAhead::Access
{
    OrvGenApi::NodeMapBase *map = nullptr;
    RegisterIo *io = nullptr;

    // Of the last completed fetch.
    uint64_t lastAskedAt = 0;
    std::chrono::steady_clock::time_point lastEnd;

    /// Calls all functions without transfers, and returns the registers that are missing.
    std::vector<RegisterRange> missing(const std::vector<Ask> &asks, uint64_t askedAt) const
    {
        Question question(Question::Kind::Looking);
        question.askedAt = askedAt;
        for (const Ask &ask : asks) {
            try {
                map->look(question, ask);
            } catch (const GenICam::GenericException &) {
                // The failure of the node is cached, too.
            }
        }
        std::vector<RegisterRange> ranges = std::move(question.missing);
        std::sort(ranges.begin(), ranges.end());
        ranges.erase(std::unique(ranges.begin(), ranges.end()), ranges.end());
        return ranges;
    }
};

class FetchAhead::Fetch final : public Request, public std::enable_shared_from_this<Fetch>
{
public:
    Fetch(std::shared_ptr<Access> access, std::vector<Ask> asks, std::function<void()> done)
        : m_access(std::move(access))
        , m_asks(std::move(asks))
        , m_done(std::move(done))
        , m_askedAt(m_access->io->now())
    {
    }

    void nextRound()
    {
        if (!m_access->map)
            return;
        const auto missing = m_access->missing(m_asks, m_askedAt);
        const std::weak_ptr<Fetch> weak = shared_from_this();
        if (missing.empty() || ++m_rounds > maxRounds) {
            m_access->lastAskedAt = m_askedAt;
            m_access->lastEnd = std::chrono::steady_clock::now();
            MainContext::post([weak] {
                if (const auto self = weak.lock())
                    self->m_done();
            });
            return;
        }
        m_transfer = m_access->io->readLater(missing, [weak] {
            MainContext::post([weak] {
                if (const auto self = weak.lock())
                    self->nextRound();
            });
        });
    }

private:
    const std::shared_ptr<Access> m_access;
    const std::vector<Ask> m_asks;
    const std::function<void()> m_done;
    const uint64_t m_askedAt;
    int m_rounds = 0;
    std::unique_ptr<Request> m_transfer;
};

namespace {

/// The request as the caller holds it.
class Holder final : public Request
{
public:
    explicit Holder(std::shared_ptr<Request> request) : m_request(std::move(request)) {}

private:
    const std::shared_ptr<Request> m_request;
};

} // namespace

FetchAhead::FetchAhead(OrvGenApi::NodeMapBase &map, RegisterIo &io)
    : m_access(std::make_shared<Access>())
{
    m_access->map = &map;
    m_access->io = &io;
}

FetchAhead::~FetchAhead()
{
    m_access->map = nullptr;
    m_access->io = nullptr;
}

bool FetchAhead::look(const Ask &ask) const
{
    for (int round = 0;; ++round) {
        Question question(Question::Kind::Looking);
        if (std::chrono::steady_clock::now() - m_access->lastEnd < fetchedAge)
            question.askedAt = m_access->lastAskedAt;
        if (m_access->map->look(question, ask))
            return true;
        if (!m_access->io->isImmediate() || round == maxRounds)
            return false;
        m_access->io->read(question.missing);
    }
}

std::unique_ptr<Request> FetchAhead::fetch(std::vector<Ask> asks, std::function<void()> done)
{
    auto fetch = std::make_shared<Fetch>(m_access, std::move(asks), std::move(done));
    fetch->nextRound();
    return std::make_unique<Holder>(std::move(fetch));
}

void FetchAhead::fetchNow(const std::vector<Ask> &asks) const
{
    const uint64_t askedAt = m_access->io->now();
    for (int round = 0; round < maxRounds; ++round) {
        const auto missing = m_access->missing(asks, askedAt);
        if (missing.empty())
            return;
        m_access->io->read(missing);
    }
}

} // namespace OrvCameraIo
