// SPDX-License-Identifier: MIT
#include "textcollector.h"
#include "translationfile.h"

#include <GenApi/GenApi.h>
#include <OrvCam.h>
#include <OrvGenParam.h>
#include <orvcamconfig.h>
#include <orvcamconfigcolordialog.h>
#include <orvcamconfigframeabdialog.h>
#include <orvcamconfigoutputdialog.h>
#include <orvcamconfigpulsedialog.h>
#include <orvcamconfigstrobedialog.h>
#include <orvcamconfigtriggerdialog.h>
#include <orvcameraselectordialog.h>
#include <orvfeaturebrowser.h>
#include <orvgenparamtreeview.h>
#include <setipdialog.h>

#include <QMenu>
#include <QtTest>
#include <QtWidgets>

namespace {

const QChar Open(0xab);  // «
const QChar Close(0xbb); // »

/// Words without translation: the micro sign, and boolean values, which only the tree translates.
const QStringList names = {QStringLiteral("true"), QStringLiteral("false"), QString(QChar(0x3bc))};

QStringList translationFiles()
{
    QStringList files;
    const QDir folder(ORV_TRANSLATIONS);
    for (const QString &name : folder.entryList({"*.ts"}))
        files << folder.filePath(name);
    return files;
}

/// The parts that a translation must keep, sorted.
QStringList fixedParts(const QString &text)
{
    static const QRegularExpression part("%L?\\d|</?\\w+>|&(?=\\w)|\\n|--\\w+");
    QStringList parts;
    for (auto i = part.globalMatch(text); i.hasNext();)
        parts << i.next().captured();
    parts.sort();
    return parts;
}

/// Encloses translated texts in marks, but not the arguments in place of "%1". Texts that are
/// missing from the translation files under their class are not marked.
class Marker : public QTranslator
{
public:
    Marker()
    {
        for (const TranslationFile::Message &message :
             TranslationFile(translationFiles().first()).messages)
            m_known.insert({message.context, message.source});
    }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        const bool isOfQt = context[0] == 'Q' && !QByteArray(context).startsWith("QtOrv");
        if (!isOfQt && !m_known.contains({QString::fromUtf8(context), text}))
            return QString();
        static const QRegularExpression place("(%L?\\d)");
        QString marked = Open + text + Close;
        return marked.replace(place, QString(Close) + "\\1" + Open);
    }

private:
    QSet<QPair<QString, QString>> m_known;
};

/// The texts that come from the camera and the system.
class CameraTexts
{
public:
    void add(const QString &text)
    {
        const QString plain =
            Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
        m_texts.insert(plain.simplified());
    }
    void add(const char *text) { add(QString::fromUtf8(text)); }

    void add(const GenApi::INodeMap &map)
    {
        GenApi::NodeList_t nodes;
        map.GetNodes(nodes);
        for (GenApi::INode *node : nodes) {
            add(node->GetName().c_str());
            add(node->GetDisplayName().c_str());
            add(node->GetDescription().c_str());
            add(node->GetToolTip().c_str());
            auto *string = dynamic_cast<GenApi::IString *>(node);
            const GenApi::EAccessMode access = node->GetAccessMode();
            if (string && (access == GenApi::RW || access == GenApi::RO))
                add(string->GetValue().c_str());
            if (auto *integer = dynamic_cast<GenApi::IInteger *>(node))
                add(integer->GetUnit().c_str());
            if (auto *number = dynamic_cast<GenApi::IFloat *>(node))
                add(number->GetUnit().c_str());
            if (auto *entry = dynamic_cast<GenApi::IEnumEntry *>(node))
                add(entry->GetSymbolic().c_str());
        }
    }

    /// The text of a step to undo consists of a feature's name and two values in GenICam's
    /// notation.
    bool contains(const QString &text) const
    {
        const bool isStep = text.contains(QStringLiteral(" \u2192 "));
        return m_texts.contains(isStep ? text.section(' ', 0, 0) : text.simplified());
    }

private:
    QSet<QString> m_texts;
};

} // namespace

/// Every text is translated, and the translations are complete.
class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void filesAreUpToDate();
    void filesAreComplete();
    void programFollowsTheLocale();
    void everyTextIsTranslated();
    void cleanupTestCase();

private:
    OrvCam::Device *openCamera();
    QStringList untranslated(const QStringList &texts) const;
    void check(const QWidget &window);
    template<typename Dialog>
    void checkDialog();

    OrvCam::System *m_system = nullptr;
    OrvCam::Device *m_device = nullptr;
    CameraTexts m_cameraTexts;
    QStringList m_untranslated;
    int m_checked = 0;
};

void TestTranslations::initTestCase()
{
    qputenv("ORVCAM_SIMULATION", "1");
    m_system = OrvCam_GetSystem();
    QVERIFY(m_system);
    m_device = openCamera();
    QVERIFY(m_device);
    int32_t code = OrvCam::Success;
    m_cameraTexts.add(*m_device->GetParamArray(&code)->GetNodeMap());
}

void TestTranslations::cleanupTestCase()
{
    if (m_device)
        m_device->Release();
    if (m_system)
        m_system->Release();
}

/// The first camera that can be opened. Records the texts of all cameras.
OrvCam::Device *TestTranslations::openCamera()
{
    OrvCam::Device *device = nullptr;
    OrvCam::InterfaceList *interfaces = m_system->GetInterfaceSet(OrvCam::InterfaceAll);
    for (auto *i = interfaces->GetFirst(); i; i = interfaces->GetNext()) {
        m_cameraTexts.add(i->GetDescription());
        m_cameraTexts.add(i->GetVersionText());
        i->RefreshDevices(nullptr, 100);
        OrvCam::DeviceInfoList *cameras = i->GetDeviceInfoSet();
        if (!cameras)
            continue;
        for (auto *info = cameras->GetFirst(); info; info = cameras->GetNext()) {
            for (const char *text :
                 {info->GetDisplayName(), info->GetVendor(), info->GetModel(), info->GetSerial(),
                  info->GetVersionText(), info->GetUserName()})
                m_cameraTexts.add(text);
            int32_t code = OrvCam::Success;
            if (!device && info->GetAccessState() == OrvCam::AccessReadWrite)
                device = OrvCam_CreateDevice(info, &code, OrvCam::AccessControl);
        }
        cameras->Release();
    }
    interfaces->Release();
    return device;
}

void TestTranslations::filesAreUpToDate()
{
    QTemporaryDir folder;
    for (const QString &file : translationFiles())
        QVERIFY(QFile::copy(file, folder.filePath(QFileInfo(file).fileName())));
    QProcess update;
    update.start(ORV_TRANSLATIONS "/update.sh", {folder.path()});
    QVERIFY(update.waitForFinished(60000));
    QVERIFY2(update.exitCode() == 0, update.readAllStandardError());

    for (const QString &name : translationFiles()) {
        QFile committed(name);
        QFile updated(folder.filePath(QFileInfo(name).fileName()));
        QVERIFY(committed.open(QIODevice::ReadOnly) && updated.open(QIODevice::ReadOnly));
        QVERIFY2(committed.readAll() == updated.readAll(),
                 qPrintable(name + " is out of date: run translations/update.sh"));
    }
}

// The files are complete, and so are the translations compiled into the library.
void TestTranslations::filesAreComplete()
{
    QCOMPARE(translationFiles().size(), 2);
    for (const QString &file : translationFiles()) {
        QTranslator translator;
        QVERIFY(translator.load(":/translations/" + QFileInfo(file).baseName() + ".qm"));
        const TranslationFile translations(file);
        QVERIFY(!translations.messages.isEmpty());
        for (const TranslationFile::Message &message : translations.messages) {
            const QString where = file + ": " + message.context + ": " + message.source;
            QVERIFY2(message.isFinished && !message.translation.isEmpty(), qPrintable(where));
            QVERIFY2(fixedParts(message.source) == fixedParts(message.translation),
                     qPrintable(where));
            QCOMPARE(translator.translate(message.context.toUtf8(), message.source.toUtf8()),
                     message.translation);
        }
    }
}

void TestTranslations::programFollowsTheLocale()
{
    const QString english = "The level of detail: basic, expert or guru.";
    const QString german = "Der Umfang: basic, expert oder guru.";
    const QString japanese = QString::fromUtf8("表示レベル: basic、expert または guru。");
    const struct
    {
        const char *language, *locale;
        QString text;
    } rows[] = {
        {"", "C.UTF-8", english},         {"", "de_DE.UTF-8", german},
        {"", "de_AT.UTF-8", german},      {"", "ja_JP.UTF-8", japanese},
        {"", "fr_FR.UTF-8", english}, // without a translation
        {"fr:de", "fr_FR.UTF-8", german}, {"en:de", "en_GB.UTF-8", english},
    };
    for (auto row : rows) {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LANGUAGE", row.language);
        environment.insert("LC_ALL", row.locale);
        program.setProcessEnvironment(environment);
        program.start(ORV_PROGRAM, {"--help"});
        QVERIFY(program.waitForFinished(60000));
        QString help = QString::fromUtf8(program.readAllStandardOutput());
        QVERIFY2(help.remove(QRegularExpression("\\s")).contains(row.text.remove(' ')),
                 qPrintable(help));
    }
}

/// The texts that are neither translated nor from the camera.
QStringList TestTranslations::untranslated(const QStringList &texts) const
{
    static const QRegularExpression marked(QString("%1[^%1%2]*%2").arg(Open).arg(Close));
    static const QRegularExpression letter("\\pL");
    static const QRegularExpression number("^([-+]?[0-9.]+(e[-+][0-9]+)?)?");
    static const QRegularExpression hexadecimalOrSize(
        "^(0x)?[0-9A-Fa-f]+\\x{2026}?(:[0-9A-F]{2})*$|^[0-9]+x[0-9]+$");
    const auto isKnown = [&](QString text) {
        return text.contains(hexadecimalOrSize) || m_cameraTexts.contains(text) ||
               names.contains(text) || !text.remove(number).contains(letter) ||
               m_cameraTexts.contains(text);
    };
    QStringList result;
    for (const QString &text : texts) {
        for (const QString &part : text.mid(text.indexOf('|') + 1).split(marked)) {
            bool isFine = isKnown(part.trimmed());
            if (!isFine) { // may be a list
                const auto all = [](const QStringList &parts, const auto &isFineToo) {
                    return std::all_of(parts.begin(), parts.end(), isFineToo);
                };
                isFine = all(part.split('\n'), [&](const QString &line) {
                    return isKnown(line.trimmed()) ||
                           all(line.split(','),
                               [&](const QString &word) { return isKnown(word.trimmed()); });
                });
            }
            if (!isFine)
                result << text;
        }
    }
    return result;
}

void TestTranslations::check(const QWidget &window)
{
    const QStringList texts = textsOf(window);
    m_checked += int(texts.size());
    m_untranslated << untranslated(texts);
}

/// Repeats the check with toggle buttons pressed, which may change their texts.
template<typename Dialog>
void TestTranslations::checkDialog()
{
    Dialog dialog(m_device, nullptr);
    dialog.show();
    check(dialog);
    for (QPushButton *button : dialog.template findChildren<QPushButton *>()) {
        if (button->isCheckable())
            button->click();
    }
    check(dialog);
}

void TestTranslations::everyTextIsTranslated()
{
    Marker marker;
    QVERIFY(QCoreApplication::installTranslator(&marker));
    int32_t code = OrvCam::Success;
    QCOMPARE(untranslated(textsOf(QLabel("Value <b>of</b> what"))).size(), 1);

    {
        OrvGui::OrvGenParamTreeView view(m_device->GetParamArray(&code), nullptr);
        view.setVisibility(OrvGui::Guru);
        view.show();
        QTreeView &tree = *view.treeView();
        tree.expandAll();
        for (QModelIndex i = tree.model()->index(0, 0); i.isValid(); i = tree.indexBelow(i)) {
            tree.setCurrentIndex(i);
            tree.openPersistentEditor(i.sibling(i.row(), 1));
            check(*view.findChild<QTextEdit *>());
        }
        check(view);
    }
    {
        OrvGui::OrvFeatureBrowser browser(m_device->GetParamArray(&code), nullptr);
        browser.show();
        browser.search(QStringLiteral("1"));
        check(browser);
        check(*browser.menu());
        QTreeView &tree = *browser.treeView();
        emit tree.customContextMenuRequested(tree.visualRect(tree.model()->index(0, 0)).center());
        auto *menu = browser.findChild<QMenu *>(QStringLiteral("FeatureMenu"));
        QVERIFY(menu);
        check(*menu);
        menu->close();
    }
    {
        OrvGui::OrvCameraSelectorDialog dialog(m_system);
        dialog.show();
        auto *tree = dialog.findChild<QTreeView *>();
        tree->expandAll();
        for (QModelIndex i = tree->model()->index(0, 0); i.isValid(); i = tree->indexBelow(i)) {
            tree->setCurrentIndex(i);
            check(dialog);
        }
    }
    {
        SetIpDialog dialog;
        dialog.setNicIPAddress(0xc0a80001);
        dialog.setNicNetmask(0xffffff00);
        for (const unsigned int address : {0xc0a80001u, 0xc0a80002u, 0x0a000001u}) {
            for (const unsigned int mask : {0xffffff00u, 0xffff0000u}) {
                dialog.setIPAddress(address);
                dialog.setNetmask(mask);
                check(dialog);
            }
        }
    }
    {
        OrvGui::OrvCamConfig window(m_device);
        window.show();
        check(window); // includes the information dialog, a child
        window.SetDevice(nullptr);
        check(window);
    }
    checkDialog<OrvGui::OrvCamConfigFrameABDialog>();
    checkDialog<OrvGui::OrvCamConfigTriggerDialog>();
    checkDialog<OrvGui::OrvCamConfigPulseDialog>();
    checkDialog<OrvGui::OrvCamConfigStrobeDialog>();
    checkDialog<OrvGui::OrvCamConfigOutputDialog>();
    checkDialog<OrvGui::OrvCamConfigColorDialog>();
    qInfo("%d texts", m_checked);
    m_untranslated.removeDuplicates();
    for (const QString &text : m_untranslated)
        qWarning("not translated: %s", qPrintable(text));
    QVERIFY(m_untranslated.isEmpty());
}

QTEST_MAIN(TestTranslations)

#include "tst_translations.moc"
