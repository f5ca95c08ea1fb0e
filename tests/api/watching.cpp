// SPDX-License-Identifier: MIT
#include "watching.h"

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <cstdlib>
#include <memory>

namespace {

class Changes : public OrvGenParam::ParamEventSink
{
public:
    void OnParameterUpdate(OrvGenParam::Param *) override { ++count; }
    int count = 0;
};

std::unique_ptr<Changes> changes;

} // namespace

void startWatching(OrvCamDevice *device)
{
    OrvGenParam::Array *array = device->GetParamArray();
    if (array->GetEnum("BalanceWhiteAuto")->SetSymbolicValue("Continuous") != OrvCam::Success)
        std::abort();
    changes = std::make_unique<Changes>();
    array->GetInt("RedCoefficient")->RegisterEventSink(changes.get());
}

int changesSeen(void)
{
    return changes->count;
}

void stopWatching(void)
{
    changes.reset();
}
