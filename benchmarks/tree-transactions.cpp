// SPDX-License-Identifier: MIT
//
// How many camera transactions does the feature tree cost?
//
//   tree-transactions [DESCRIPTION.xml ...]
//
// For the simulated camera and for each description: the transactions of reading all cells for the
// first time and again, and those of writing each writable number back to itself and reading all
// cells after that. A camera needs about a millisecond for each, so the counts are what a user
// feels; the times only say what this machine adds to them.

#include <aravis/nodemap.h>
#include <genparamtreemodel.h>
#include <simulation/simulatedcamera.h>

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

struct Cost
{
    OrvAravis::Transactions transactions;
    double milliseconds;
};

template<typename Work>
Cost costOf(const OrvAravis::NodeMap &map, Work work)
{
    const OrvAravis::Transactions before = map.transactions();
    QElapsedTimer timer;
    timer.start();
    work();
    const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
    const OrvAravis::Transactions after = map.transactions();
    return {{after.reads - before.reads, after.writes - before.writes}, milliseconds};
}

void measure(const QString &name, OrvAravis::NodeMap &map, double loading)
{
    QTextStream out(stdout);
    GenParamTreeModel model(&map, nullptr);
    const Cost first = costOf(map, [&] { readAllCells(model); });
    const Cost again = costOf(map, [&] { readAllCells(model); });

    std::vector<QModelIndex> cells;
    collectWritable(model, QModelIndex(), cells);
    std::vector<quint64> reads;
    quint64 refused = 0;
    quint64 severalWrites = 0;
    for (const QModelIndex &cell : cells) {
        const Cost write = costOf(map, [&] {
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

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QElapsedTimer timer;
    try {
        timer.start();
        OrvSimulation::SimulatedCamera camera;
        const auto map = OrvAravis::NodeMap::open(camera.device());
        measure("simulated camera", *map, double(timer.nsecsElapsed()) / 1e6);
        for (int i = 1; i < argc; ++i) {
            timer.start();
            const auto description = OrvAravis::NodeMap::fromFile(argv[i]);
            measure(argv[i], *description, double(timer.nsecsElapsed()) / 1e6);
        }
    } catch (const GenICam::GenericException &e) {
        QTextStream(stderr) << e.GetDescription() << '\n';
        return 1;
    }
    return 0;
}
