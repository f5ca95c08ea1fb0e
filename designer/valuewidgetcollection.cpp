// SPDX-License-Identifier: MIT
#include "valuewidgetcollection.h"

#include "qtorvdoubleslider.h"
#include "qtorvdoublespinboxval.h"
#include "qtorvgainslider.h"
#include "qtorvslider.h"
#include "qtorvsliderspinbox.h"
#include "qtorvspinbox.h"
#include "qtorvspinboxval.h"

namespace {

template<class Widget>
ValueWidgetDescription describe(const QString &toolTip, const QString &whatsThis, const QSize &size)
{
    return {QString::fromLatin1(Widget::staticMetaObject.className()), toolTip, whatsThis, size,
            [](QWidget *parent) -> QWidget * { return new Widget(parent); }};
}

} // namespace

ValueWidgetCollection::ValueWidgetCollection(QObject *parent) : QObject(parent)
{
    const ValueWidgetDescription descriptions[] = {
        describe<QtOrvSlider>(tr("Slider with a linear, logarithmic or square-root scale"),
                              tr("An integer slider with its two ends written beside it, for "
                                 "values with a wide useful range."),
                              QSize(80, 200)),
        describe<QtOrvDoubleSlider>(tr("Slider for floating-point values"),
                                    tr("A floating-point slider with its two ends written beside "
                                       "it; one position is one single step."),
                                    QSize(80, 200)),
        describe<QtOrvSpinBoxVal>(tr("Spin box for integers on a grid of steps"),
                                  tr("A spin box whose values may be snapped to a grid of single "
                                     "steps from the minimum, and whose text may wait for Return."),
                                  QSize(120, 32)),
        describe<QtOrvDoubleSpinBoxVal>(
            tr("Spin box for floating-point values on a grid of steps"),
            tr("A floating-point spin box whose values may be snapped to a grid of single steps "
               "from the minimum, and whose text may wait for Return."),
            QSize(120, 32)),
        describe<QtOrvSpinBox>(tr("Spin box with a slider that pops up"),
                               tr("An integer spin box with a button that shows a scaled slider, "
                                  "and with a caption to the left or above."),
                               QSize(160, 32)),
        describe<QtOrvSliderSpinBox>(tr("Spin box with a slider beside it"),
                                     tr("An integer spin box and a scaled slider kept in step, "
                                        "with a caption to the left or above."),
                                     QSize(280, 56)),
        describe<QtOrvGainSlider>(tr("Floating-point spin box with a slider beside it"),
                                  tr("A floating-point spin box and a slider kept in step, with a "
                                     "caption to the left or above."),
                                  QSize(280, 56)),
    };
    for (const ValueWidgetDescription &description : descriptions)
        interfaces.push_back(std::make_unique<ValueWidgetInterface>(description));
}

QList<QDesignerCustomWidgetInterface *> ValueWidgetCollection::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    for (const auto &interface : interfaces)
        widgets.append(interface.get());
    return widgets;
}
