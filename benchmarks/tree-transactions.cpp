// SPDX-License-Identifier: MIT
//
// How many camera transactions does the feature tree cost?
//
//   tree-transactions [DESCRIPTION.xml ...]
//   tree-transactions --address IPV4
//
// For each description (by default the simulated camera's) or for a GigE Vision camera, counts the
// transactions of reading all cells twice, and those of writing each writable value back and
// reading all cells again. A transaction takes a camera about a millisecond, so the counts
// determine what a user notices; the printed times are only this machine's share.
//
// With --address, transactions are counted on the loopback device; on-the-wire.sh sets up such a
// network.

// Before Qt, whose keywords are names in GLib.
#include <arv.h>

#include "gvcpcounter.h"

#include <OrvCam.h>
#include <OrvGenParam.h>
#include <genparamtreemodel.h>
#include <orvcameraapi-aravis.h>
#include <simulatednodemap.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {

void readAllCells(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex cell = model.index(row, column, parent);
            for (int role : {Qt::DisplayRole, Qt::EditRole, Qt::ForegroundRole, Qt::BackgroundRole,
                             Qt::WhatsThisRole})
                model.data(cell, role);
            model.flags(cell);
        }
        readAllCells(model, model.index(row, 0, parent));
    }
}

void collectWritable(const QAbstractItemModel &model, const QModelIndex &parent,
                     std::vector<QModelIndex> &cells)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex value = model.index(row, 1, parent);
        auto *feature = value.data(Qt::UserRole).value<GenApi::IValue *>();
        const auto type = feature->GetNode()->GetPrincipalInterfaceType();
        if ((value.flags() & Qt::ItemIsEditable) && type != GenApi::intfICommand &&
            value.data(Qt::EditRole).isValid())
            cells.push_back(value);
        collectWritable(model, model.index(row, 0, parent), cells);
    }
}

/// Counts transactions.
class Meter
{
public:
    virtual ~Meter() = default;

    /// Returns the number since the last call.
    virtual OrvCameraIo::Transactions take() = 0;
};

/// Counts at the node map's port.
class PortMeter : public Meter
{
public:
    explicit PortMeter(const OrvDescription::NodeMap &map) : m_map(map) {}

    OrvCameraIo::Transactions take() override
    {
        const OrvCameraIo::Transactions now = m_map.transactions();
        const OrvCameraIo::Transactions difference = {now.reads - m_last.reads,
                                                      now.writes - m_last.writes};
        m_last = now;
        return difference;
    }

private:
    const OrvDescription::NodeMap &m_map;
    OrvCameraIo::Transactions m_last;
};

/// Counts on the loopback device.
class WireMeter : public Meter
{
public:
    bool isListening() const { return m_counter.isListening(); }

    OrvCameraIo::Transactions take() override
    {
        const QList<GvcpCommand> commands = m_counter.take();
        return {quint64(readsIn(commands)), quint64(writesIn(commands))};
    }

private:
    GvcpCounter m_counter;
};

struct Cost
{
    OrvCameraIo::Transactions transactions;
    double milliseconds;
};

template<typename Work>
Cost costOf(Meter &meter, Work work)
{
    meter.take();
    QElapsedTimer timer;
    timer.start();
    work();
    const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
    return {meter.take(), milliseconds};
}

void measure(const QString &name, GenApi::INodeMap &map, Meter &meter, double loading)
{
    QTextStream out(stdout);
    GenParamTreeModel model(&map, nullptr);
    const Cost first = costOf(meter, [&] { readAllCells(model); });
    const Cost again = costOf(meter, [&] { readAllCells(model); });

    std::vector<QModelIndex> cells;
    collectWritable(model, QModelIndex(), cells);
    std::vector<quint64> reads;
    quint64 refused = 0;
    quint64 severalWrites = 0;
    for (const QModelIndex &cell : cells) {
        const Cost write = costOf(meter, [&] {
            refused += model.setData(cell, cell.data(Qt::EditRole)) ? 0 : 1;
            readAllCells(model);
        });
        reads.push_back(write.transactions.reads);
        severalWrites += write.transactions.writes > 1 ? 1 : 0;
    }
    std::sort(reads.begin(), reads.end());

    out << name << "\n  loading " << loading
        << " ms\n  all cells, first time: " << first.transactions.reads << " reads, "
        << first.milliseconds << " ms\n  all cells, again:      " << again.transactions.reads
        << " reads, " << again.milliseconds << " ms\n";
    if (!reads.empty())
        out << "  one write and all cells after it, for " << reads.size() << " features: median "
            << reads[reads.size() / 2] << " reads, most " << reads.back()
            << "; more than one write: " << severalWrites << "; refused: " << refused << "\n";
}

double millisecondsOf(QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

void measureSimulation(QElapsedTimer &timer)
{
    timer.start();
    OrvSimulation::SimulatedCamera camera;
    const auto map = openNodeMap(camera);
    PortMeter meter(*map);
    measure("simulated camera", *map, meter, millisecondsOf(timer));
}

void measureDescription(const char *fileName, QElapsedTimer &timer)
{
    timer.start();
    const auto map = OrvDescription::NodeMap::fromFile(fileName);
    PortMeter meter(*map);
    measure(fileName, *map, meter, millisecondsOf(timer));
}

bool measureCamera(const char *address, QElapsedTimer &timer)
{
    QTextStream err(stderr);
    WireMeter meter;
    if (!meter.isListening()) {
        err << "the wire cannot be listened to: be root of the network namespace\n";
        return false;
    }
    GInetAddress *inetAddress = g_inet_address_new_from_string(address);
    if (!inetAddress) {
        err << "'" << address << "' is no address\n";
        return false;
    }
    timer.start();
    GError *error = nullptr;
    ArvDevice *device = arv_gv_device_new(inetAddress, inetAddress, &error);
    g_object_unref(inetAddress);
    if (!device) {
        err << error->message << '\n';
        g_error_free(error);
        return false;
    }
    const OrvCameraIo::Transactions opening = meter.take();
    OrvCam::Device *camera = OrvCam_AdoptArvDevice(device, nullptr);
    if (!camera) {
        err << "the camera's description cannot be used\n";
        return false;
    }
    const double loading = millisecondsOf(timer);
    const OrvCameraIo::Transactions building = meter.take();
    QTextStream(stdout) << "opening the device: " << opening.reads << " reads, " << opening.writes
                        << " writes; making its node map: " << building.reads << " reads, "
                        << building.writes << " writes\n";
    measure(address, *camera->GetParamArray()->GetNodeMap(), meter, loading);
    camera->Release();
    g_object_unref(device);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QElapsedTimer timer;
    try {
        if (argc == 3 && qstrcmp(argv[1], "--address") == 0)
            return measureCamera(argv[2], timer) ? 0 : 1;
        measureSimulation(timer);
        for (int i = 1; i < argc; ++i)
            measureDescription(argv[i], timer);
    } catch (const GenICam::GenericException &e) {
        QTextStream(stderr) << e.GetDescription() << '\n';
        return 1;
    }
    return 0;
}
