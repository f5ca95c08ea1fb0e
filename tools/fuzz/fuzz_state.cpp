// SPDX-License-Identifier: MIT
// Loads arbitrary text as the saved state of a feature tree.
#include "check.h"

#include "genparamtree/samplenodemap.h"

#include <orvgenparamtreeview.h>

#include <QApplication>

#include <stdexcept>
#include <string>

namespace {

void load(OrvGui::OrvGenParamTreeView &view, const std::string &state)
{
    try {
        view.loadState(state.c_str());
    } catch (const std::invalid_argument &) {
    } catch (const std::out_of_range &) {
    }
    QApplication::processEvents();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static int argc = 1;
    static char name[] = "fuzz_state";
    static char *argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    static SampleNodeMap map;
    static auto *view = [] {
        auto *shown = new OrvGui::OrvGenParamTreeView(&map, nullptr);
        shown->show();
        return shown;
    }();

    load(*view, std::string(data, data + size));
    // Loading a state also expands the parents of its categories, so only the second save is exact.
    load(*view, std::string(view->saveState()));
    const std::string saved = view->saveState();
    load(*view, saved);
    check(view->saveState() == saved, "a saved state is not reproduced");

    load(*view, "&lt;&amp;W100&amp;V0");
    return 0;
}
