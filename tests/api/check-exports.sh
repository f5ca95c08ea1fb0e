#!/bin/sh
# SPDX-License-Identifier: MIT
# Checks the names that libOrvCameraGuiApi exports: the C functions, under their plain names, and
# the members and type information of its public classes. Nothing else.
set -eu
library=$1
# The linker marks ends of sections in a library for ARM.
names=$("${NM:-nm}" -D --defined-only "$library" | awk '{ print $NF }' | sort -u |
    grep -vxE '_*(bss_start|bss_end|end)_*')

trees='CreateGenParamTreeViewFor(Array|Nodemap)[AW]|DestroyGenParamTreeView'
dialogs='SelectCamera[AW]|Show(CamConfig|Color|FrameAB|Output|Pulse|Strobe|Trigger)Dialog'
for function in CreateGenParamTreeViewForArrayA CreateGenParamTreeViewForArrayW \
    CreateGenParamTreeViewForNodemapA CreateGenParamTreeViewForNodemapW DestroyGenParamTreeView \
    SelectCameraA SelectCameraW ShowCamConfigDialog ShowColorDialog ShowFrameABDialog \
    ShowOutputDialog ShowPulseDialog ShowStrobeDialog ShowTriggerDialog; do
    echo "$names" | grep -qx "$function" || { echo "not exported: $function" >&2; exit 1; }
done

classes='OrvGui::(I?OrvGenParamTreeView|OrvCameraSelectorDialog)
OrvGui::I?OrvCamConfig[A-Za-z]*
QtOrv(Slider|DoubleSlider|GainSlider|SpinBox|SliderSpinBox|SpinBoxVal|DoubleSpinBoxVal)'
classes=$(echo "$classes" | paste -sd'|')
about='vtable for |typeinfo (name )?for |VTT for |non-virtual thunk to |guard variable for '
readable=$(echo "$names" | c++filt)
private=$(echo "$readable" | grep -E 'Private(::.*)?$' || true)
surplus=$(echo "$readable" |
    grep -vE "^($trees|$dialogs|OrvGui::SelectCamera\(.*\))\$" |
    grep -vE "^($about|void |bool )?($classes)(::.*)?\$" || true)
if [ -n "$private$surplus" ]; then
    echo "exported, but not meant to be:" >&2
    printf '%s\n' "$private" "$surplus" >&2
    exit 1
fi
