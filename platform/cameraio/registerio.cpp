// SPDX-License-Identifier: MIT
#include "registerio.h"

#include "registercache.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <set>
#include <thread>

namespace OrvCameraIo {

using OrvGenApi::RegisterWrite;

namespace {

/// A request to the camera.
struct Job
{
    std::vector<RegisterRange> reads;
    std::size_t readsDone = 0;
    std::vector<RegisterWrite> writes;
    std::size_t writesDone = 0;

    /// Guards `done`; recursive, because `done` may drop its own request.
    std::recursive_mutex calling;
    std::function<void()> done; ///< for a request that does not block

    Status status = Status::Done; ///< of the writes
    unsigned progress = 0;        ///< changes after each command
    std::atomic<bool> isDropped{false};
    bool isDone = false;
};

using JobPtr = std::shared_ptr<Job>;

bool isMasked(const RegisterWrite &write)
{
    return !write.mask.empty();
}

} // namespace

class RegisterIo::Private
{
public:
    explicit Private(std::unique_ptr<Port> wanted) : port(std::move(wanted)) {}

    void run();
    void runJob(std::unique_lock<std::mutex> &lock, const JobPtr &job);
    void readChunk(std::unique_lock<std::mutex> &lock, Job &job);
    void readAll(std::unique_lock<std::mutex> &lock, Job &job);
    std::size_t chunkSize(const Job &job) const;
    void writeNext(std::unique_lock<std::mutex> &lock, Job &job);
    Status write(std::unique_lock<std::mutex> &lock, const RegisterWrite &wanted);
    Status baseOf(std::unique_lock<std::mutex> &lock, const RegisterWrite &wanted,
                  std::vector<uint8_t> &bytes);
    void transfer(std::unique_lock<std::mutex> &lock, std::vector<ReadTransfer> &batch);

    bool hasUsable(const RegisterRange &range, uint64_t since) const;
    void storeUnanswered(const RegisterRange &range);
    void finish(const JobPtr &job);
    void failAll();
    void await(std::unique_lock<std::mutex> &lock, const JobPtr &job,
               std::chrono::milliseconds timeout);

    void attend(std::unique_lock<std::mutex> &lock);
    void answered(std::unique_lock<std::mutex> &lock);
    void unanswered(const std::vector<RegisterRange> &ranges);
    void probe(std::unique_lock<std::mutex> &lock);
    void lookForLost(std::unique_lock<std::mutex> &lock, Port::Presence presence);
    void notify(std::unique_lock<std::mutex> &lock, void (RegisterIoListener::*event)());

    const std::unique_ptr<Port> port;

    mutable std::mutex mutex; ///< guards the members up to the blank line
    RegisterCache cache;
    uint64_t clock = 0;
    Transactions transactions;
    std::deque<JobPtr> waiting;
    std::deque<JobPtr> background;
    bool isSilent = false; ///< the last command got no answer
    bool isLost = false;
    bool isStopping = false;
    std::vector<RegisterRange> unansweredRanges; ///< no answer since the camera became silent
    std::set<RegisterRange> suspects;            ///< no answer although the camera was there
    int unansweredProbes = 0;                    ///< since the last answer
    Clock::time_point lastAnswer = Clock::now();
    Clock::time_point lastCommand = Clock::now();
    Clock::time_point lastReopening;

    std::condition_variable wake;     ///< wakes the I/O thread
    std::condition_variable progress; ///< wakes the callers
    std::mutex onPort;                ///< held while an immediate port is used
    std::recursive_mutex notifying;   ///< locked while the listener is called
    RegisterIoListener *listener = nullptr;
    std::thread thread;
};

// The I/O thread

void RegisterIo::Private::run()
{
    std::unique_lock<std::mutex> lock(mutex);
    while (!isStopping) {
        auto &queue = waiting.empty() ? background : waiting;
        if (!queue.empty()) {
            const JobPtr job = queue.front();
            runJob(lock, job);
            continue;
        }
        const auto next = lastCommand + Limits::keepAlivePeriod;
        if (wake.wait_until(lock, next) == std::cv_status::timeout && !isStopping)
            probe(lock);
    }
    failAll();
}

void RegisterIo::Private::runJob(std::unique_lock<std::mutex> &lock, const JobPtr &job)
{
    if (!job->isDropped && isSilent) {
        failAll();
        return;
    }
    if (!job->isDropped) {
        if (job->readsDone < job->reads.size())
            readChunk(lock, *job);
        else if (job->writesDone < job->writes.size())
            writeNext(lock, *job);
    }
    ++job->progress;
    progress.notify_all();
    const bool isAtEnd = job->readsDone >= job->reads.size() &&
                         (job->writesDone >= job->writes.size() || job->status != Status::Done);
    if (job->isDropped || isAtEnd)
        finish(job);
    if (isSilent)
        probe(lock);
}

void RegisterIo::Private::finish(const JobPtr &job)
{
    for (auto *queue : {&waiting, &background})
        queue->erase(std::remove(queue->begin(), queue->end(), job), queue->end());
    if (job->isDone)
        return;
    job->isDone = true;
    progress.notify_all();
    const std::lock_guard<std::recursive_mutex> calling(job->calling);
    if (job->done && !job->isDropped)
        job->done();
}

void RegisterIo::Private::failAll()
{
    for (auto *queue : {&waiting, &background}) {
        while (!queue->empty()) {
            const JobPtr job = queue->front();
            for (std::size_t i = job->readsDone; i < job->reads.size(); ++i)
                storeUnanswered(job->reads[i]);
            if (!job->writes.empty())
                job->status = isStopping ? Status::Closed : Status::NoAnswer;
            finish(job);
        }
    }
}

/// The number of registers to read next in one command. A register that may never be answered is
/// read alone.
std::size_t RegisterIo::Private::chunkSize(const Job &job) const
{
    const auto first = job.reads.begin() + static_cast<std::ptrdiff_t>(job.readsDone);
    const std::size_t most =
        std::min(static_cast<std::size_t>(job.reads.end() - first), port->batchSize());
    if (suspects.empty())
        return most;
    const auto last = first + static_cast<std::ptrdiff_t>(most);
    const auto suspect = std::find_if(
        first, last, [this](const RegisterRange &range) { return suspects.count(range) != 0; });
    return std::max<std::size_t>(1, static_cast<std::size_t>(suspect - first));
}

void RegisterIo::Private::readAll(std::unique_lock<std::mutex> &lock, Job &job)
{
    while (job.readsDone < job.reads.size())
        readChunk(lock, job);
}

void RegisterIo::Private::readChunk(std::unique_lock<std::mutex> &lock, Job &job)
{
    const std::size_t count = chunkSize(job);
    std::vector<ReadTransfer> batch(count);
    for (std::size_t i = 0; i < count; ++i)
        batch[i].range = job.reads[job.readsDone + i];
    transfer(lock, batch);
    // Registers that were left out for lack of time come next.
    const auto unread =
        std::stable_partition(batch.begin(), batch.end(), [](const ReadTransfer &read) {
            return read.status != Status::NotSent;
        });
    job.readsDone += static_cast<std::size_t>(unread - batch.begin());
    std::transform(unread, batch.end(),
                   job.reads.begin() + static_cast<std::ptrdiff_t>(job.readsDone),
                   [](const ReadTransfer &read) { return read.range; });
}

void RegisterIo::Private::transfer(std::unique_lock<std::mutex> &lock,
                                   std::vector<ReadTransfer> &batch)
{
    const uint64_t moment = ++clock;
    lock.unlock();
    port->read(batch);
    lock.lock();

    const auto time = Clock::now();
    lastCommand = time;
    bool hasAnswer = false;
    std::vector<RegisterRange> unansweredNow;
    // Without a failed command, the port left registers out for lack of time only.
    const bool isWithoutFailure =
        std::all_of(batch.begin(), batch.end(), [](const ReadTransfer &read) {
            return isAnswer(read.status) || read.status == Status::NotSent;
        });
    for (ReadTransfer &read : batch) {
        if (isWithoutFailure && read.status == Status::NotSent)
            continue;
        ++transactions.reads;
        if (read.status == Status::Done && read.bytes.size() != read.range.size)
            read.status = Status::Failed;
        hasAnswer |= isAnswer(read.status);
        if (read.status == Status::NoAnswer)
            unansweredNow.push_back(read.range);
        if (read.status == Status::NotSent)
            read.status = Status::NoAnswer;
        if (read.status != Status::Done)
            read.bytes.clear();
        cache.store(read.range, {read.status, read.bytes, moment, time});
    }
    if (!unansweredNow.empty())
        unanswered(unansweredNow);
    else if (hasAnswer)
        answered(lock);
}

void RegisterIo::Private::writeNext(std::unique_lock<std::mutex> &lock, Job &job)
{
    job.status = write(lock, job.writes[job.writesDone]);
    ++job.writesDone;
}

Status RegisterIo::Private::write(std::unique_lock<std::mutex> &lock, const RegisterWrite &wanted)
{
    const RegisterRange range{wanted.address, static_cast<uint32_t>(wanted.bytes.size())};
    std::vector<uint8_t> bytes = wanted.bytes;
    if (isMasked(wanted)) {
        const Status known = baseOf(lock, wanted, bytes);
        if (known != Status::Done)
            return known;
    }
    const uint64_t moment = ++clock;
    ++transactions.writes;
    lock.unlock();
    const Status status = port->write(range.address, bytes);
    lock.lock();

    lastCommand = Clock::now();
    cache.forgetOverlapping(range);
    if (status == Status::Done && wanted.isKept)
        cache.store(range, {status, std::move(bytes), moment, lastCommand});
    if (isAnswer(status))
        answered(lock);
    else if (status == Status::NoAnswer)
        unanswered({});
    return status;
}

/// The bytes to write: those of the register outside the mask.
Status RegisterIo::Private::baseOf(std::unique_lock<std::mutex> &lock, const RegisterWrite &wanted,
                                   std::vector<uint8_t> &bytes)
{
    const RegisterRange range{wanted.address, static_cast<uint32_t>(wanted.bytes.size())};
    const RegisterCache::Entry *known = cache.find(range);
    if (!known || known->status != Status::Done || known->moment < wanted.staleSince) {
        known = nullptr;
        if (!wanted.isWriteOnly) {
            std::vector<ReadTransfer> batch(1);
            batch.front().range = range;
            transfer(lock, batch);
            if (batch.front().status != Status::Done)
                return batch.front().status;
            known = cache.find(range);
        }
    }
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const uint8_t mask = i < wanted.mask.size() ? wanted.mask[i] : uint8_t(0);
        const uint8_t old = known ? known->bytes[i] : uint8_t(0);
        bytes[i] = static_cast<uint8_t>((bytes[i] & mask) | (old & ~mask));
    }
    return Status::Done;
}

// Silence

void RegisterIo::Private::notify(std::unique_lock<std::mutex> &lock,
                                 void (RegisterIoListener::*event)())
{
    lock.unlock();
    {
        const std::lock_guard<std::recursive_mutex> guard(notifying);
        if (listener)
            (listener->*event)();
    }
    lock.lock();
}

void RegisterIo::Private::answered(std::unique_lock<std::mutex> &lock)
{
    lastAnswer = Clock::now();
    const bool wasThere = unansweredProbes == 0;
    unansweredProbes = 0;
    if (!isSilent)
        return;
    isSilent = false;
    // A register without an answer, although the camera answers others, counts as refused: reading
    // it again would cost a second each time.
    std::set<RegisterRange> refused;
    for (const RegisterRange &range : unansweredRanges) {
        if (wasThere && !suspects.insert(range).second && unansweredRanges.size() == 1)
            refused.insert(range);
    }
    unansweredRanges.clear();
    cache.forgetUnanswered(refused);
    notify(lock, &RegisterIoListener::answersAgain);
}

void RegisterIo::Private::unanswered(const std::vector<RegisterRange> &ranges)
{
    isSilent = true;
    unansweredRanges.insert(unansweredRanges.end(), ranges.begin(), ranges.end());
}

void RegisterIo::Private::probe(std::unique_lock<std::mutex> &lock)
{
    lock.unlock();
    const Port::Presence presence = port->probe();
    lock.lock();
    lastCommand = Clock::now();
    if (isStopping)
        return;
    if (isLost) {
        lookForLost(lock, presence);
        return;
    }
    if (presence == Port::Presence::Answers) {
        answered(lock);
        return;
    }
    ++unansweredProbes;
    const bool isGone = lastCommand - lastAnswer >= Limits::lostAfter &&
                        unansweredProbes >= Limits::lostAfterProbes;
    if (presence == Port::Presence::Silent && !isGone)
        return;
    isSilent = true;
    isLost = true;
    failAll();
    notify(lock, &RegisterIoListener::lost);
    if (presence == Port::Presence::Forgotten && !isStopping)
        lookForLost(lock, presence);
}

void RegisterIo::Private::lookForLost(std::unique_lock<std::mutex> &lock, Port::Presence presence)
{
    bool isBack = presence == Port::Presence::Answers;
    const bool isDue = Clock::now() - lastReopening >= Limits::reopeningPeriod;
    if (!isBack && isDue) {
        lock.unlock();
        isBack = port->reopen([this] {
            const std::lock_guard<std::mutex> guard(mutex);
            return isStopping;
        });
        lock.lock();
        lastReopening = lastCommand = Clock::now();
    }
    if (!isBack || isStopping)
        return;
    isLost = false;
    isSilent = false;
    unansweredProbes = 0;
    unansweredRanges.clear();
    suspects.clear();
    lastAnswer = Clock::now();
    cache.clear();
    notify(lock, &RegisterIoListener::found);
}

// The callers

bool RegisterIo::Private::hasUsable(const RegisterRange &range, uint64_t since) const
{
    const RegisterCache::Entry *entry = cache.find(range);
    return entry && entry->moment >= since;
}

void RegisterIo::Private::storeUnanswered(const RegisterRange &range)
{
    cache.store(range, {Status::NoAnswer, {}, ++clock, Clock::now()});
}

void RegisterIo::Private::await(std::unique_lock<std::mutex> &lock, const JobPtr &job,
                                std::chrono::milliseconds timeout)
{
    while (!job->isDone) {
        const unsigned before = job->progress;
        const bool hasMoved = progress.wait_for(
            lock, timeout, [&] { return job->isDone || job->progress != before; });
        if (!hasMoved) {
            job->isDropped = true;
            return;
        }
    }
}

RegisterIo::RegisterIo(std::unique_ptr<Port> port) : d(std::make_unique<Private>(std::move(port)))
{
    if (!d->port->isImmediate())
        d->thread = std::thread([this] { d->run(); });
}

RegisterIo::~RegisterIo()
{
    {
        const std::lock_guard<std::mutex> lock(d->mutex);
        d->isStopping = true;
    }
    d->port->interrupt();
    d->wake.notify_all();
    if (d->thread.joinable())
        d->thread.join();
}

void RegisterIo::setListener(RegisterIoListener *listener)
{
    const std::lock_guard<std::recursive_mutex> lock(d->notifying);
    d->listener = listener;
}

uint64_t RegisterIo::now()
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    return ++d->clock;
}

RegisterIo::Known RegisterIo::look(const RegisterRange &range, uint64_t since,
                                   std::chrono::milliseconds maxAge) const
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    const RegisterCache::Entry *entry = d->cache.find(range);
    if (!entry || entry->moment < since)
        return {};
    if (maxAge != maxAge.zero() && Clock::now() - entry->time > maxAge)
        return {};
    return {true, entry->status, entry->bytes};
}

void RegisterIo::read(const std::vector<RegisterRange> &ranges)
{
    const auto job = std::make_shared<Job>();
    job->reads = ranges;
    if (d->port->isImmediate()) {
        const std::lock_guard<std::mutex> onPort(d->onPort);
        std::unique_lock<std::mutex> lock(d->mutex);
        d->readAll(lock, *job);
        return;
    }
    std::unique_lock<std::mutex> lock(d->mutex);
    const uint64_t asked = d->clock;
    if (!d->isSilent && !d->isStopping) {
        d->waiting.push_back(job);
        d->wake.notify_all();
        d->await(lock, job, Limits::readBudget + Limits::keepAlivePeriod);
    }
    for (const RegisterRange &range : ranges) {
        if (!d->hasUsable(range, asked + 1))
            d->storeUnanswered(range);
    }
}

namespace {

class JobRequest final : public Request
{
public:
    explicit JobRequest(JobPtr job) : m_job(std::move(job)) {}
    ~JobRequest() override
    {
        m_job->isDropped = true;
        // Blocks until a running call has returned.
        const std::lock_guard<std::recursive_mutex> calling(m_job->calling);
    }

private:
    const JobPtr m_job;
};

} // namespace

std::unique_ptr<Request> RegisterIo::readLater(std::vector<RegisterRange> ranges,
                                               std::function<void()> done)
{
    const auto job = std::make_shared<Job>();
    job->reads = std::move(ranges);
    job->done = std::move(done);
    auto request = std::make_unique<JobRequest>(job);
    if (d->port->isImmediate()) {
        const std::lock_guard<std::mutex> onPort(d->onPort);
        std::unique_lock<std::mutex> lock(d->mutex);
        d->readAll(lock, *job);
        d->finish(job);
        return request;
    }
    const std::lock_guard<std::mutex> lock(d->mutex);
    d->background.push_back(job);
    d->wake.notify_all();
    return request;
}

Status RegisterIo::write(const std::vector<RegisterWrite> &writes)
{
    const auto job = std::make_shared<Job>();
    job->writes = writes;
    if (d->port->isImmediate()) {
        const std::lock_guard<std::mutex> onPort(d->onPort);
        std::unique_lock<std::mutex> lock(d->mutex);
        while (job->writesDone < writes.size() && job->status == Status::Done)
            d->writeNext(lock, *job);
        return job->status;
    }
    std::unique_lock<std::mutex> lock(d->mutex);
    if (d->isSilent)
        return Status::NoAnswer;
    if (d->isStopping)
        return Status::Closed;
    d->waiting.push_back(job);
    d->wake.notify_all();
    d->await(lock, job, Limits::writeBudget + Limits::keepAlivePeriod);
    return job->isDone ? job->status : Status::NoAnswer;
}

bool RegisterIo::isImmediate() const
{
    return d->port->isImmediate();
}

void RegisterIo::setHints(const PortHints &hints)
{
    const std::lock_guard<std::mutex> onPort(d->onPort);
    d->port->setHints(hints);
}

bool RegisterIo::isWordNumber() const
{
    return d->port->isWordNumber();
}

void RegisterIo::forgetAll()
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    d->cache.clear();
}

bool RegisterIo::isSilent() const
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    return d->isSilent;
}

bool RegisterIo::isLost() const
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    return d->isLost;
}

Transactions RegisterIo::transactions() const
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    return d->transactions;
}

} // namespace OrvCameraIo
