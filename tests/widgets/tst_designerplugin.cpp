// SPDX-License-Identifier: MIT
#include "qtorvslider.h"
#include "ui_valuewidgets.h"

#include <QPluginLoader>
#include <QUiLoader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtWidgets>

class TestDesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersEveryWidget();
    void loadsAForm();

private:
    static void checkForm(const QWidget *form);
};

void TestDesignerPlugin::offersEveryWidget()
{
    QPluginLoader plugin(QStringLiteral(ORV_PLUGIN));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin.instance());
    QVERIFY2(collection, qPrintable(plugin.errorString()));

    QSet<QString> names;
    QSet<QString> toolTips;
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(QStringLiteral(ORV_PLUGIN)).path());
    for (QDesignerCustomWidgetInterface *interface : collection->customWidgets()) {
        names << interface->name();
        toolTips << interface->toolTip();
        QVERIFY(!interface->isContainer());
        const QIcon icon = interface->icon();
        QVERIFY2(!icon.pixmap(24, 24).isNull(), qPrintable(interface->name()));
        QVERIFY(QFile::exists(QStringLiteral(ORV_HEADERS "/") + interface->includeFile()));

        // Dropping the widget on a form: its initial size must be sufficient.
        QByteArray xml = interface->domXml().toUtf8();
        QBuffer buffer(&xml);
        const QScopedPointer<QWidget> dropped(loader.load(&buffer));
        QVERIFY2(dropped, qPrintable(loader.errorString()));
        QCOMPARE(dropped->metaObject()->className(), qPrintable(interface->name()));
        const QSize needed = dropped->minimumSizeHint();
        QVERIFY2(dropped->width() >= needed.width() && dropped->height() >= needed.height(),
                 qPrintable(interface->name()));
    }
    QCOMPARE(names, (QSet<QString>{"QtOrvSlider", "QtOrvDoubleSlider", "QtOrvSpinBoxVal",
                                   "QtOrvDoubleSpinBoxVal", "QtOrvSpinBox", "QtOrvSliderSpinBox",
                                   "QtOrvGainSlider"}));
    QCOMPARE(toolTips.count(), 7);
    QVERIFY(!toolTips.contains(QString()));
}

// Loads the same form with QUiLoader and with uic.
void TestDesignerPlugin::loadsAForm()
{
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(QStringLiteral(ORV_PLUGIN)).path());
    QFile file(QStringLiteral(ORV_FORM));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QScopedPointer<QWidget> form(loader.load(&file));
    QVERIFY2(form, qPrintable(loader.errorString()));
    checkForm(form.data());

    QWidget compiled;
    Ui::ValueWidgets ui;
    ui.setupUi(&compiled);
    checkForm(&compiled);
}

void TestDesignerPlugin::checkForm(const QWidget *form)
{
    const struct
    {
        const char *widget, *property;
        QVariant value;
    } rows[] = {
        {"slider1", "orientation", Qt::Horizontal},
        {"slider1", "scaleType", QtOrvSlider::ScaleLog10},
        {"slider1", "log10Coef", 200.0},
        {"slider1", "value", 1000000},
        {"spinBox1", "value", 16},
        {"spinBox1", "validateTyping", false},
        {"spinBox3", "value", 42},
        {"spinBox3", "sliderOrientation", Qt::Horizontal},
        {"spinBox3", "readOnly", true},
        {"spinBox3", "scaleType", QtOrvSlider::ScaleSqrt},
        {"spinBox4", "scaleType", QtOrvSlider::ScaleLog10},
        {"spinBox4", "topLabelText", QString("Delay")},
        {"spinBox4", "value", -7},
    };
    for (const auto &row : rows) {
        const auto *widget = form->findChild<QWidget *>(QString::fromLatin1(row.widget));
        QVERIFY2(widget, row.widget);
        // With Qt 6, an enumeration property converts to the name of its value.
        const QVariant value = widget->property(row.property);
        const bool isNumber = row.value.canConvert<double>();
        QVERIFY2(isNumber ? value.toDouble() == row.value.toDouble()
                          : value.toString() == row.value.toString(),
                 row.property);
    }

    // The form contains a connection.
    form->findChild<QtOrvSlider *>("slider1")->setValue(1);
    QCOMPARE(form->findChild<QWidget *>("spinBox4")->property("value").toInt(), 1);
}

QTEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"
