// SPDX-License-Identifier: MIT
#include "qtorvdoubleslider.h"
#include "qtorvdoublespinboxval.h"
#include "qtorvgainslider.h"
#include "qtorvslider.h"
#include "qtorvsliderspinbox.h"
#include "qtorvspinbox.h"
#include "qtorvspinboxval.h"
#include "ui_valuewidgets.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QPluginLoader>
#include <QSet>
#include <QTest>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

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
    QSet<QString> groups;
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(QStringLiteral(ORV_PLUGIN)).path());
    for (QDesignerCustomWidgetInterface *interface : collection->customWidgets()) {
        names << interface->name();
        toolTips << interface->toolTip();
        groups << interface->group();
        QVERIFY(!interface->isContainer());
        const QIcon icon = interface->icon();
        QVERIFY2(!icon.pixmap(24, 24).isNull(), qPrintable(interface->name()));
        QVERIFY(QFile::exists(QStringLiteral(ORV_HEADERS "/") + interface->includeFile()));

        // What a drop on a form makes: the widget fits into its first size.
        QByteArray xml = interface->domXml().toUtf8();
        QBuffer buffer(&xml);
        const QScopedPointer<QWidget> dropped(loader.load(&buffer));
        QVERIFY2(dropped, qPrintable(loader.errorString()));
        QCOMPARE(dropped->metaObject()->className(), qPrintable(interface->name()));
        const QSize needed = dropped->minimumSizeHint();
        QVERIFY2(dropped->width() >= needed.width() && dropped->height() >= needed.height(),
                 qPrintable(interface->name()));
    }
    QCOMPARE(names, (QSet<QString>{
                        QStringLiteral("QtOrvSlider"), QStringLiteral("QtOrvDoubleSlider"),
                        QStringLiteral("QtOrvSpinBoxVal"), QStringLiteral("QtOrvDoubleSpinBoxVal"),
                        QStringLiteral("QtOrvSpinBox"), QStringLiteral("QtOrvSliderSpinBox"),
                        QStringLiteral("QtOrvGainSlider")}));
    QCOMPARE(toolTips.count(), 7);
    QVERIFY(!toolTips.contains(QString()));
    QCOMPARE(groups.count(), 1);
}

// The same form by QUiLoader and by uic.
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
    const auto *slider = form->findChild<QtOrvSlider *>(QStringLiteral("slider1"));
    QVERIFY(slider);
    QCOMPARE(slider->frameShape(), QFrame::StyledPanel);
    QCOMPARE(slider->orientation(), Qt::Horizontal);
    QCOMPARE(slider->scaleType(), QtOrvSlider::ScaleLog10);
    QCOMPARE(slider->log10Coef(), 200.0);
    QCOMPARE(slider->value(), 1000000);
    const auto *real = form->findChild<QtOrvDoubleSlider *>(QStringLiteral("slider2"));
    QVERIFY(real);
    QCOMPARE(real->value(), 7.5);
    const auto *box = form->findChild<QtOrvSpinBoxVal *>(QStringLiteral("spinBox1"));
    QVERIFY(box);
    QCOMPARE(box->value(), 16);
    QVERIFY(!box->validateTyping());
    const auto *realBox = form->findChild<QtOrvDoubleSpinBoxVal *>(QStringLiteral("spinBox2"));
    QVERIFY(realBox);
    QCOMPARE(realBox->value(), 1.25);
    const auto *popUp = form->findChild<QtOrvSpinBox *>(QStringLiteral("spinBox3"));
    QVERIFY(popUp);
    QCOMPARE(popUp->value(), 42);
    QCOMPARE(popUp->sliderOrientation(), Qt::Horizontal);
    QVERIFY(popUp->isReadOnly() && !popUp->isSliderButtonVisible());
    auto *beside = form->findChild<QtOrvSliderSpinBox *>(QStringLiteral("spinBox4"));
    QVERIFY(beside);
    QCOMPARE(beside->topLabelText(), QStringLiteral("Delay"));
    QCOMPARE(beside->value(), -7);
    const auto *gain = form->findChild<QtOrvGainSlider *>(QStringLiteral("spinBox5"));
    QVERIFY(gain);
    QCOMPARE(gain->value(), 6.25);

    // The form's connection.
    const_cast<QtOrvSlider *>(slider)->setValue(1);
    QCOMPARE(beside->value(), 1);
}

QTEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"
