// SPDX-License-Identifier: MIT
#include "widgets/valueaccessibility.h"

#include "widgets/numbertext.h"
#include "widgets/qtorvdoubleslider.h"
#include "widgets/qtorvdoublespinboxval.h"
#include "widgets/qtorvgainslider.h"
#include "widgets/qtorvslider.h"
#include "widgets/qtorvsliderspinbox.h"
#include "widgets/qtorvspinbox.h"
#include "widgets/qtorvspinboxval.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QToolButton>

namespace {

/// The property of a list that uses its accessible name.
constexpr char named[] = "orvNamed";

QString shown(const QtOrvSlider *slider)
{
    return NumberText::of(slider->value(), slider->locale());
}

QString shown(const QtOrvDoubleSlider *slider)
{
    return NumberText::of(slider->value(), slider->decimals(), slider->locale());
}

QString shown(const QAbstractSpinBox *box)
{
    return box->text();
}

template<class Compound>
auto shown(const Compound *widget) -> decltype(widget->spinBox()->text())
{
    return widget->spinBox()->text();
}

QString captionOf(const QWidget *widget)
{
    for (const char *name : {"labelLeft", "labelUpper"}) {
        const auto *label =
            widget->findChild<QLabel *>(QLatin1String(name), Qt::FindDirectChildrenOnly);
        if (label && !label->text().isEmpty())
            return label->text();
    }
    return QString();
}

bool isCompound(const QObject *object)
{
    return qobject_cast<const QtOrvSpinBox *>(object) ||
           qobject_cast<const QtOrvSliderSpinBox *>(object) ||
           qobject_cast<const QtOrvGainSlider *>(object);
}

bool isPartOwner(const QObject *object)
{
    return isCompound(object) || qobject_cast<const QtOrvSlider *>(object) ||
           qobject_cast<const QtOrvDoubleSlider *>(object);
}

// The interface of a widget; its value is that of the value widget that it is or belongs to.
template<class Source>
class ValueInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    ValueInterface(QWidget *widget, Source *valueWidget, QAccessible::Role role)
        : QAccessibleWidget(widget, role), m_source(valueWidget)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return shown(m_source);
        return kind == QAccessible::Name ? name() : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return m_source->value(); }
    QVariant minimumValue() const override { return m_source->minimum(); }
    QVariant maximumValue() const override { return m_source->maximum(); }
    QVariant minimumStepSize() const override { return m_source->singleStep(); }
    void setCurrentValue(const QVariant &value) override
    {
        m_source->setValue(value.value<decltype(m_source->value())>());
    }

private:
    // A part without a name has that of its value widget.
    QString name() const
    {
        if (!widget()->accessibleName().isEmpty())
            return widget()->accessibleName();
        QString name = captionOf(widget());
        if (name.isEmpty())
            name = QAccessibleWidget::text(QAccessible::Name);
        if (name.isEmpty() && isPartOwner(widget()->parent()))
            name =
                QAccessible::queryAccessibleInterface(widget()->parent())->text(QAccessible::Name);
        return name;
    }

    Source *const m_source;
};

// Qt returns the text interface of a line edit, except for the one of a spin box. It recognises
// that one by its object name, and leaves it to the interface of the spin box.
QAccessibleInterface *lineEditInterface(QWidget *spinBox)
{
    auto *edit = spinBox->findChild<QLineEdit *>();
    const QString name = edit->objectName();
    edit->setObjectName(QString());
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(edit);
    edit->setObjectName(name);
    return interface;
}

// The spin box in a compound widget; other spin boxes have Qt's own interface.
template<class SpinBox>
class SpinBoxInterface : public ValueInterface<SpinBox>
{
public:
    explicit SpinBoxInterface(SpinBox *box)
        : ValueInterface<SpinBox>(box, box, QAccessible::SpinBox), m_edit(lineEditInterface(box))
    {
    }

    int childCount() const override { return 0; }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface || type == QAccessible::EditableTextInterface)
            return m_edit->interface_cast(type);
        return ValueInterface<SpinBox>::interface_cast(type);
    }

private:
    QAccessibleInterface *const m_edit; // owned by Qt, as long as the line edit exists
};

// The button that opens the slider, also with the name of its value widget.
class ButtonInterface : public QAccessibleWidget
{
public:
    explicit ButtonInterface(QToolButton *toolButton)
        : QAccessibleWidget(toolButton, QAccessible::Button), m_button(toolButton)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name)
            return text;
        QAccessibleInterface *owner = QAccessible::queryAccessibleInterface(m_button->parent());
        return QString(owner->text(QAccessible::Name) + QLatin1Char(' ') + text).trimmed();
    }

    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction())
            m_button->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QToolButton *const m_button;
};

class ListInterface : public QAccessibleWidget
{
public:
    explicit ListInterface(QComboBox *comboBox)
        : QAccessibleWidget(comboBox, QAccessible::ComboBox), m_list(comboBox)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_list->currentText() : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = m_list->view()->isVisible();
        return state;
    }

    int childCount() const override { return 1; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(m_list->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child->object() == m_list->view() ? 0 : -1;
    }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }

    QStringList actionNames() const override
    {
        return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name != showMenuAction() && name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (m_list->view()->isVisible())
            m_list->hidePopup();
        else
            m_list->showPopup();
    }

private:
    QComboBox *const m_list;
};

QAccessibleInterface *createForButton(QObject *object)
{
    auto *button = qobject_cast<QToolButton *>(object);
    const bool isPart = button && qobject_cast<QtOrvSpinBox *>(button->parent());
    return isPart ? new ButtonInterface(button) : nullptr;
}

QAccessibleInterface *createForList(QObject *object)
{
    auto *list = qobject_cast<QComboBox *>(object);
    return list && list->property(named).toBool() ? new ListInterface(list) : nullptr;
}

template<class Widget>
QAccessibleInterface *createFor(QObject *object)
{
    auto *widget = qobject_cast<Widget *>(object);
    return widget ? new ValueInterface<Widget>(widget, widget, QAccessible::Grouping) : nullptr;
}

template<class Slider>
QAccessibleInterface *createForInner(QObject *object)
{
    auto *inner = qobject_cast<QSlider *>(object);
    auto *slider = inner ? qobject_cast<Slider *>(inner->parent()) : nullptr;
    return slider ? new ValueInterface<Slider>(inner, slider, QAccessible::Slider) : nullptr;
}

template<class SpinBox>
QAccessibleInterface *createForSpinBox(QObject *object)
{
    auto *box = qobject_cast<SpinBox *>(object);
    return box && isCompound(box->parent()) ? new SpinBoxInterface<SpinBox>(box) : nullptr;
}

// May be called while a widget is under construction, so it must not call the widget's functions.
QAccessibleInterface *create(const QString &, QObject *object)
{
    using Creator = QAccessibleInterface *(*)(QObject *);
    static constexpr Creator creators[] = {&createForInner<QtOrvSlider>,
                                           &createForInner<QtOrvDoubleSlider>,
                                           &createForSpinBox<QtOrvSpinBoxVal>,
                                           &createForSpinBox<QtOrvDoubleSpinBoxVal>,
                                           &createForButton,
                                           &createForList,
                                           &createFor<QtOrvSlider>,
                                           &createFor<QtOrvDoubleSlider>,
                                           &createFor<QtOrvSpinBox>,
                                           &createFor<QtOrvSliderSpinBox>,
                                           &createFor<QtOrvGainSlider>};
    for (const Creator creator : creators) {
        if (QAccessibleInterface *interface = creator(object))
            return interface;
    }
    return nullptr;
}

struct Installation
{
    Installation() { QAccessible::installFactory(&create); }
    ~Installation() { QAccessible::removeFactory(&create); }
};

} // namespace

void ValueAccessibility::install()
{
    static const Installation installation;
}

void ValueAccessibility::setName(QComboBox *list, const QString &name)
{
    install();
    list->setProperty(named, true);
    list->setAccessibleName(name);
    list->view()->setAccessibleName(name);
}
