// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfigopening.h"

#include "base/cameralibrary.h"
#include "base/cameratext.h"
#include "camconfig/openingprogress.h"

#include <OrvCam.h>

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

#include <atomic>
#include <condition_variable>
#include <list>
#include <mutex>
#include <set>
#include <thread>
#include <utility>

using OrvCam::DeviceOpener;

namespace OrvGui {

namespace {

constexpr int dialogDelay = 300;   // ms until the dialog is shown
constexpr int progressPeriod = 50; // ms

/// The reason of a failure by its error code; empty for an unknown code.
QString reasonOf(int32_t code)
{
    switch (code) {
    case OrvCam::ErrorBusy:
        return OrvCamConfigOpening::tr("Another program has it open.");
    case OrvCam::ErrorGone:
        return OrvCamConfigOpening::tr("It does not answer.");
    case OrvCam::ErrorTimeout:
        return OrvCamConfigOpening::tr("It did not answer in time.");
    case OrvCam::ErrorWrongSubnet:
        return OrvCamConfigOpening::tr("Its address does not fit the network adapter's subnet.");
    case OrvCam::ErrorBadDescription:
        return OrvCamConfigOpening::tr("Its description cannot be used.");
    case OrvCam::ErrorAccessDenied:
        return OrvCamConfigOpening::tr("It refuses access.");
    default:
        return QString();
    }
}

/// The reason of a failure, with the platform's text if the code is not specific.
QString explained(const DeviceOpener::Result &result)
{
    const QString reason = reasonOf(result.error);
    const bool isPlain = !reason.isEmpty() && result.error != OrvCam::ErrorBadDescription;
    const QString detail = isPlain ? QString() : cameraText(result.reason.c_str());
    if (reason.isEmpty() || detail.isEmpty())
        return reason + detail;
    return reason + QLatin1Char('\n') + detail;
}

/// For a library that only has the function to open a camera. The job keeps its system alive.
DeviceOpener::Open simpleOpener(OrvCam::DeviceInfo &camera)
{
    return [&camera](const DeviceOpener::Request &request) {
        DeviceOpener::Result result;
        result.device = CameraLibrary::createDevice(camera, nullptr, request.accessMode);
        result.error = result.device ? OrvCam::Success : OrvCam::ErrorFailed;
        return result;
    };
}

} // namespace

/// The data that the GUI thread and the opening thread share.
struct OrvCamConfigOpening::Job
{
    DeviceOpener::Open open;
    DeviceOpener::Request request;
    std::function<void(OrvCam::Device &)> prepare;
    std::string camera;
    std::shared_ptr<OrvCam::System> system; ///< null when the opener keeps the system alive

    std::atomic<bool> isCancelled{false};
    std::atomic<int> percent{-1};
    std::atomic<bool> isThreadDone{false};

    std::mutex mutex;            ///< for `receiver` and `result`
    QObject *receiver = nullptr; ///< null when the device is no longer needed
    DeviceOpener::Result result;

    QEventLoop *loop = nullptr; ///< of the GUI thread
    bool isOver = false;        ///< on that thread, too
};

/// The threads that open cameras, including cancelled ones.
class OrvCamConfigOpening::Workers
{
public:
    static Workers &all()
    {
        static Workers workers;
        return workers;
    }

    ~Workers()
    {
        for (const Worker &worker : m_workers)
            cancel(*worker.job);
        for (Worker &worker : m_workers)
            worker.thread.join();
    }

    void start(const std::shared_ptr<Job> &job)
    {
        reap();
        m_workers.push_back({job, std::thread([job] { work(*job); })});
    }

    void reap()
    {
        for (auto it = m_workers.begin(); it != m_workers.end();) {
            if (!it->job->isThreadDone) {
                ++it;
                continue;
            }
            it->thread.join();
            it = m_workers.erase(it);
        }
    }

    /// Waits until no other opening of the same camera is in progress, because only one can have
    /// control. Returns false when this one has been cancelled.
    bool begin(const Job &job)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_ended.wait(lock, [&] { return job.isCancelled || m_cameras.count(job.camera) == 0; });
        return !job.isCancelled && m_cameras.insert(job.camera).second;
    }

    void end(const Job &job)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_cameras.erase(job.camera);
        m_ended.notify_all();
    }

    void cancel(Job &job)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        job.isCancelled = true;
        m_ended.notify_all();
    }

private:
    struct Worker
    {
        std::shared_ptr<Job> job;
        std::thread thread;
    };

    std::list<Worker> m_workers; ///< used on the GUI thread only

    std::mutex m_mutex; ///< protects the list of cameras that are being opened
    std::condition_variable m_ended;
    std::set<std::string> m_cameras;
};

OrvCamConfigOpening::OrvCamConfigOpening(OrvCam::DeviceInfo &camera, qint32 accessMode,
                                         QWidget *window)
    : QObject(window)
    , m_camera(camera)
    , m_window(window)
    , m_name(cameraText(camera.GetDisplayName()))
    , m_job(std::make_shared<Job>())
{
    m_job->request.accessMode = accessMode;
}

OrvCamConfigOpening::~OrvCamConfigOpening()
{
    abandon();
    delete m_progress;
}

void OrvCamConfigOpening::setPreparation(std::function<void(OrvCam::Device &)> prepare)
{
    m_job->prepare = std::move(prepare);
}

void OrvCamConfigOpening::setReceiver(std::function<void(OrvCam::Device *)> receiver)
{
    m_receiver = std::move(receiver);
}

void OrvCamConfigOpening::setProgress(std::function<bool(int percent)> progress)
{
    m_report = std::move(progress);
}

OrvCamConfigOpening::Result OrvCamConfigOpening::exec()
{
    // This object may be destroyed when the function returns.
    const std::shared_ptr<Job> job = m_job;
    const QPointer<OrvCamConfigOpening> self(this);
    QEventLoop loop;
    job->loop = &loop;
    start();
    loop.exec();
    job->loop = nullptr;
    if (job->isOver)
        return take(*job);
    if (self)
        abandon(); // the program is about to exit
    Result cancelled;
    cancelled.isCancelled = true;
    return cancelled;
}

void OrvCamConfigOpening::start()
{
    if (auto *opener = dynamic_cast<DeviceOpener *>(&m_camera)) {
        m_job->open = opener->opener();
    } else {
        m_job->open = simpleOpener(m_camera);
        m_job->system.reset(CameraLibrary::system(), OrvCam::Releaser());
    }
    m_job->camera = m_camera.GetId();
    m_job->receiver = this;
    m_job->request.report = [job = m_job.get()](int percent) { job->percent = percent; };
    m_job->request.isCancelled = [job = m_job.get()] { return job->isCancelled.load(); };
    QTimer::singleShot(dialogDelay, this, [this] { show(); });
    Workers::all().start(m_job);
}

void OrvCamConfigOpening::show()
{
    if (m_job->isOver || m_job->isCancelled)
        return;
    auto *timer = new QTimer(this);
    timer->start(progressPeriod);
    if (m_report) {
        connect(timer, &QTimer::timeout, this, [this] {
            if (!m_job->isOver && !m_report(m_job->percent))
                abandon();
        });
        return;
    }
    m_progress = new OpeningProgress(m_name, m_window);
    timer->setParent(m_progress);
    connect(m_progress, &QDialog::rejected, this, &OrvCamConfigOpening::abandon);
    connect(timer, &QTimer::timeout, this, [this] { m_progress->setShare(m_job->percent); });
    m_progress->setShare(m_job->percent);
    m_progress->show();
}

void OrvCamConfigOpening::abandon()
{
    Workers::all().cancel(*m_job);
    {
        const std::lock_guard<std::mutex> lock(m_job->mutex);
        m_job->receiver = nullptr;
        OrvCam::Releaser()(std::exchange(m_job->result.device, nullptr));
    }
    if (m_job->loop)
        m_job->loop->quit();
}

bool OrvCamConfigOpening::event(QEvent *event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    if (!m_job->isCancelled)
        end();
    return true;
}

void OrvCamConfigOpening::end()
{
    const std::shared_ptr<Job> job = m_job;
    job->isOver = true;
    job->system.reset();
    delete m_progress;
    Workers::all().reap();
    if (job->loop)
        job->loop->quit();
    const auto receiver = m_receiver;
    if (!receiver || !job->result.device)
        return;
    receiver(take(*job).device); // may destroy this object
}

OrvCamConfigOpening::Result OrvCamConfigOpening::take(Job &job)
{
    Result result;
    const std::lock_guard<std::mutex> lock(job.mutex);
    result.device = std::exchange(job.result.device, nullptr);
    result.error = job.result.error;
    result.reason = explained(job.result);
    return result;
}

// On the opening thread

void OrvCamConfigOpening::work(Job &job)
{
    const bool isBegun = Workers::all().begin(job);
    DeviceOpener::Result result;
    result.error = OrvCam::ErrorFailed;
    try {
        if (isBegun)
            result = job.open(job.request);
        if (result.device && job.prepare && !job.isCancelled)
            job.prepare(*result.device);
    } catch (const std::exception &e) {
        result.reason = e.what();
    }
    job.open = nullptr;
    deliver(job, std::move(result));
    if (isBegun)
        Workers::all().end(job);
    job.isThreadDone = true;
}

void OrvCamConfigOpening::deliver(Job &job, DeviceOpener::Result result)
{
    {
        const std::lock_guard<std::mutex> lock(job.mutex);
        if (job.receiver) {
            job.result = std::move(result);
            QCoreApplication::postEvent(job.receiver, new QEvent(QEvent::User));
            return;
        }
    }
    OrvCam::Releaser()(result.device);
    job.system.reset();
}

} // namespace OrvGui
