// SPDX-License-Identifier: MIT
#include "settings/orvsettingsmenu.h"

#include "base/cameratext.h"
#include "journal/featurejournal.h"
#include "settings/featurevalue.h"
#include "settings/orvcamerasettings.h"
#include "settings/settingscomparison.h"
#include "settings/settingsjob.h"
#include "settings/settingsorder.h"
#include "settings/settingsreader.h"
#include "settings/settingstabledialog.h"
#include "settings/settingswriter.h"
#include "settings/usersets.h"

#include <QAction>
#include <QActionGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QHash>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <memory>
#include <utility>

namespace OrvGui {

class OrvSettingsMenuPrivate
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvSettingsMenu)

public:
    OrvSettingsMenuPrivate(OrvSettingsMenu *menu, QWidget *window);
    ~OrvSettingsMenuPrivate();
    Q_DISABLE_COPY(OrvSettingsMenuPrivate)

    void setNodeMap(GenApi::INodeMap *newMap);
    void save(const QString &fileName);
    void load(const QString &fileName);
    void compare(const QString &fileName);
    void putBack();

    OrvSettingsMenu *const q;
    GenApi::INodeMap *map = nullptr;
    QAction *saveAction, *loadAction, *putBackAction, *compareAction, *userSetsAction;

private:
    /// The comparison of a file with the camera before it is loaded.
    struct Preview
    {
        QString fileName;
        SettingsFile file;
        Settings settings; ///< of the file
        Settings before;   ///< the same in the camera
        QString error;
        bool isSameModel = true;
        bool isCancelled = false;
    };

    using Done = std::function<void()>;

    QAction *add(const QString &text, const char *name);
    void end();
    void askForFile(QFileDialog::AcceptMode mode, const QString &title,
                    std::function<void(const QString &)> then);
    void run(const QString &text, const SettingsJob::Work &work, const Done &done);
    SettingsTableDialog *newDialog(const QString &title, const char *name);
    void show(QDialog *dialog, QList<QPointer<QDialog>> *others);
    void say(QMessageBox::Icon icon, const QString &text);
    void ask(const QString &text, const QString &yes, const Done &then);

    void showSaved(const QString &fileName, const OrvCameraSettings::Result &result);
    void previewLoad(const std::shared_ptr<Preview> &preview);
    void showPreview(const std::shared_ptr<Preview> &preview);
    void write(const QString &text, const Settings &settings, bool isPuttingBack);
    void journalWritten(const SettingsWriter::Result &result, bool isPuttingBack);
    void showWritten(const SettingsWriter::Result &result, bool isPuttingBack);
    void showComparison(const QString &fileName, const OrvCameraSettings::Result &result);
    void compareFiles(SettingsTableDialog *dialog, const QString &left, const QString &right);
    void fillUserSets();
    void addUserSets(const QString &title, const QStringList &names, const QString &question,
                     QString (UserSets::*act)(const QString &));

    QWidget *const m_window;
    QMenu m_userSets;
    QPointer<SettingsJob> m_job;
    QList<QPointer<QDialog>> m_dialogs; ///< they are closed when the camera is removed
    QList<QPointer<QDialog>> m_results;
    Settings m_before; ///< the values before the last load
};

namespace {

SettingsTable::Row problemRow(const SettingProblem &problem)
{
    return {problem.setting.label(), problem.setting.value, problem.reason};
}

SettingsTable::Rows rowsOf(const OrvCameraSettings::Result &result)
{
    SettingsTable::Rows rows;
    for (const auto &one : result.differences)
        rows.append({one.feature, one.left, one.right});
    for (const QString &name : result.missing)
        rows.append({name, QString(), QString()});
    return rows;
}

void destroyAll(QList<QPointer<QDialog>> *dialogs)
{
    for (const QPointer<QDialog> &dialog : std::exchange(*dialogs, {}))
        delete dialog;
}

QString baseName(const QString &fileName)
{
    return cameraText(QFileInfo(fileName).fileName(), LongestName);
}

} // namespace

OrvSettingsMenuPrivate::OrvSettingsMenuPrivate(OrvSettingsMenu *menu, QWidget *window)
    : q(menu)
    , saveAction(add(tr("Save Settings..."), "actionSaveSettings"))
    , loadAction(add(tr("Load Settings..."), "actionLoadSettings"))
    , putBackAction(add(tr("Put Settings Back"), "actionPutSettingsBack"))
    , compareAction(add(tr("Compare with File..."), "actionCompareSettings"))
    , userSetsAction(add(tr("User Sets"), "actionUserSets"))
    , m_window(window)
{
    userSetsAction->setMenu(&m_userSets);
    QObject::connect(&m_userSets, &QMenu::aboutToShow, q, [this] { fillUserSets(); });
    QObject::connect(saveAction, &QAction::triggered, q, [this] {
        askForFile(QFileDialog::AcceptSave, tr("Save Settings"),
                   [this](const QString &name) { save(name); });
    });
    QObject::connect(loadAction, &QAction::triggered, q, [this] {
        askForFile(QFileDialog::AcceptOpen, tr("Load Settings"),
                   [this](const QString &name) { load(name); });
    });
    QObject::connect(putBackAction, &QAction::triggered, q, [this] { putBack(); });
    QObject::connect(compareAction, &QAction::triggered, q, [this] {
        askForFile(QFileDialog::AcceptOpen, tr("Compare with File"),
                   [this](const QString &name) { compare(name); });
    });
    setNodeMap(nullptr);
}

QAction *OrvSettingsMenuPrivate::add(const QString &text, const char *name)
{
    auto *action = new QAction(text, q);
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

OrvSettingsMenuPrivate::~OrvSettingsMenuPrivate()
{
    end();
    destroyAll(&m_results);
}

void OrvSettingsMenuPrivate::end()
{
    delete m_job;
    destroyAll(&m_dialogs);
}

void OrvSettingsMenuPrivate::setNodeMap(GenApi::INodeMap *newMap)
{
    const bool isInterrupted = m_job;
    end();
    map = newMap;
    m_before.clear();
    for (QAction *action : {saveAction, loadAction, compareAction})
        action->setEnabled(map);
    putBackAction->setEnabled(false);
    const bool hasSets = map && UserSets(*map).exist();
    userSetsAction->setEnabled(hasSets);
    userSetsAction->setVisible(hasSets);
    if (isInterrupted)
        say(QMessageBox::Warning,
            tr("The camera is gone. Not everything that was begun has been done."));
}

void OrvSettingsMenuPrivate::askForFile(QFileDialog::AcceptMode mode, const QString &title,
                                        std::function<void(const QString &)> then)
{
    auto *dialog = new QFileDialog(m_window, title);
    dialog->setAcceptMode(mode);
    dialog->setFileMode(mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile
                                                        : QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("Camera settings (*.pfs)"), tr("All files (*)")});
    dialog->setDefaultSuffix(QStringLiteral("pfs"));
    QObject::connect(dialog, &QFileDialog::fileSelected, q, std::move(then));
    show(dialog, &m_dialogs);
}

/// Runs one operation at a time: its progress dialog blocks the menu.
void OrvSettingsMenuPrivate::run(const QString &text, const SettingsJob::Work &work,
                                 const Done &done)
{
    if (m_job || !map)
        return;
    m_job = new SettingsJob(text, work, m_window);
    QObject::connect(m_job, &SettingsJob::finished, q, [this, done] {
        m_job->deleteLater();
        m_job.clear();
        done();
        emit q->finished();
    });
}

SettingsTableDialog *OrvSettingsMenuPrivate::newDialog(const QString &title, const char *name)
{
    auto *dialog = new SettingsTableDialog(title, m_window);
    dialog->setObjectName(QString::fromLatin1(name));
    return dialog;
}

void OrvSettingsMenuPrivate::show(QDialog *dialog, QList<QPointer<QDialog>> *others)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    others->removeAll(QPointer<QDialog>());
    others->append(dialog);
    dialog->open();
}

void OrvSettingsMenuPrivate::say(QMessageBox::Icon icon, const QString &text)
{
    auto *box = new QMessageBox(icon, QString(), text, QMessageBox::Ok, m_window);
    box->setTextFormat(Qt::PlainText);
    show(box, &m_results);
}

void OrvSettingsMenuPrivate::ask(const QString &text, const QString &yes, const Done &then)
{
    auto *box =
        new QMessageBox(QMessageBox::Question, QString(), text, QMessageBox::Cancel, m_window);
    box->setTextFormat(Qt::PlainText);
    const QAbstractButton *button = box->addButton(yes, QMessageBox::AcceptRole);
    QObject::connect(button, &QAbstractButton::clicked, q, [=] { then(); });
    show(box, &m_dialogs);
}

void OrvSettingsMenuPrivate::save(const QString &fileName)
{
    const auto result = std::make_shared<OrvCameraSettings::Result>();
    run(
        tr("Reading the settings of the camera..."),
        [=, camera = map](const SettingsProgress &progress) {
            *result = OrvCameraSettings::save(*camera, fileName, progress);
        },
        [=] { showSaved(fileName, *result); });
}

void OrvSettingsMenuPrivate::showSaved(const QString &fileName,
                                       const OrvCameraSettings::Result &result)
{
    if (!result.error.isEmpty())
        return say(QMessageBox::Critical, tr("The settings are not saved. %1").arg(result.error));
    if (result.isCancelled)
        return;
    const QString text =
        tr("Settings saved in %1: %2.").arg(baseName(fileName), QString::number(result.count));
    if (result.problems.isEmpty())
        return say(QMessageBox::Information, text);
    SettingsTable::Rows rows;
    for (const auto &problem : result.problems)
        rows.append({problem.feature, problem.reason});
    auto *dialog = newDialog(tr("Save Settings"), "SettingsSaved");
    dialog->addCloseButton();
    dialog->setContents(text + QLatin1Char(' ') + tr("These are not:"),
                        {tr("Feature"), tr("Reason")}, rows);
    show(dialog, &m_results);
}

void OrvSettingsMenuPrivate::load(const QString &fileName)
{
    QString error;
    const auto preview = std::make_shared<Preview>();
    preview->fileName = fileName;
    preview->file = SettingsFile::read(fileName, &error);
    if (!error.isEmpty())
        return say(QMessageBox::Critical, error);
    run(
        tr("Reading the settings of the camera..."),
        [=, camera = map](const SettingsProgress &progress) {
            SettingsReader reader(*camera, progress);
            preview->isSameModel = reader.isSameModel(preview->file.device);
            preview->settings = resolvedSettings(preview->file.lines, *camera);
            const SettingsReader::Result read = reader.read(preview->settings);
            preview->before = read.settings;
            preview->error = read.error;
            preview->isCancelled = read.isCancelled;
        },
        [=] { previewLoad(preview); });
}

void OrvSettingsMenuPrivate::previewLoad(const std::shared_ptr<Preview> &preview)
{
    if (!preview->error.isEmpty())
        return say(QMessageBox::Critical, preview->error);
    if (preview->isCancelled)
        return;
    if (preview->isSameModel)
        return showPreview(preview);
    ask(tr("The file has the settings of another model: %1. Much of it may not fit. Do you want to "
           "see what would change?")
            .arg(cameraText(preview->file.device, LongestName)),
        tr("Continue"), [=] { showPreview(preview); });
}

void OrvSettingsMenuPrivate::showPreview(const std::shared_ptr<Preview> &preview)
{
    SettingsTable::Rows changes;
    SettingsTable::Rows missing;
    for (const SettingDifference &one : differencesOf(preview->before, preview->settings, map)) {
        const QString name = one.feature.section(QLatin1Char(' '), 0, 0);
        const bool isMissing = !map->GetNode(name.toUtf8().constData());
        (isMissing ? missing : changes).append({one.feature, one.left, one.right});
    }
    const QString name = baseName(preview->fileName);
    QString text = changes.isEmpty() ? tr("The camera has all values of %1 already.").arg(name)
                                     : tr("This is what %1 changes:").arg(name);
    if (!missing.isEmpty())
        text +=
            QLatin1Char(' ') + tr("(The last rows are of features that the camera does not have.)");
    auto *dialog = newDialog(tr("Load Settings"), "SettingsPreview");
    if (!changes.isEmpty())
        dialog->addAcceptButton(tr("Load"));
    dialog->addCloseButton(!changes.isEmpty());
    dialog->setContents(text, {tr("Feature"), tr("Camera"), tr("File")}, changes + missing);
    QObject::connect(dialog, &QDialog::accepted, q, [this, preview] {
        m_before.clear();
        for (const Setting &setting : preview->before) {
            if (!setting.value.isNull())
                m_before.append(setting);
        }
        write(tr("Writing the settings to the camera..."), preview->settings, false);
    });
    show(dialog, &m_dialogs);
}

void OrvSettingsMenuPrivate::write(const QString &text, const Settings &settings,
                                   bool isPuttingBack)
{
    const auto result = std::make_shared<SettingsWriter::Result>();
    run(
        text,
        [=, camera = map](const SettingsProgress &progress) {
            SettingsWriter writer(*camera, progress);
            *result = writer.write(settings);
        },
        [=] {
            journalWritten(*result, isPuttingBack);
            showWritten(*result, isPuttingBack);
        });
}

/// Not a step of the journal, because the journal does not repeat refused writes; "Put Back" does.
void OrvSettingsMenuPrivate::journalWritten(const SettingsWriter::Result &result,
                                            bool isPuttingBack)
{
    QHash<QString, QString> former;
    for (const Setting &setting : std::as_const(m_before))
        former.insert(setting.label(), setting.value);
    QVector<FeatureJournal::Write> writes;
    for (const Setting &setting : result.taken) {
        GenApi::IValue *feature = settingOf(*map, setting.name);
        if (!feature)
            continue;
        const QString before = former.value(setting.label());
        FeatureJournal::Write write{feature->GetNode(), QString(), setting.value, {}};
        if (!isPuttingBack && !FeatureValue::areSame(feature, before, setting.value))
            write.before = before;
        for (const auto &position : setting.selection)
            write.selectors.append({position.first, position.second, position.second});
        writes.append(write);
    }
    if (!writes.isEmpty())
        FeatureJournal::of(map)->startAnew(writes);
}

void OrvSettingsMenuPrivate::showWritten(const SettingsWriter::Result &result, bool isPuttingBack)
{
    putBackAction->setEnabled(!m_before.isEmpty());
    QString text = result.isCancelled ? tr("Cancelled.") + QLatin1Char(' ') : QString();
    if (!result.error.isEmpty())
        text += result.error + QLatin1Char(' ');
    text += tr("Settings that the camera has now: %1.").arg(result.written);
    SettingsTable::Rows rows;
    for (const SettingProblem &problem : result.refused)
        rows.append(problemRow(problem));
    for (const Setting &setting : result.missing)
        rows.append({setting.label(), setting.value, tr("The camera does not have it.")});
    for (const QString &name : result.notPutBack)
        rows.append({name, QString(), tr("It could not be put back.")});
    if (!rows.isEmpty())
        text += QLatin1Char(' ') + tr("These are not:");

    auto *dialog = newDialog(tr("Load Settings"), "SettingsResult");
    if (!isPuttingBack) {
        QPushButton *button = dialog->addButton(tr("Put Back"));
        button->setObjectName(QStringLiteral("putBackButton"));
        button->setToolTip(tr("Gives the camera the values that it had before"));
        // Not enabled again: the former values may then belong to another camera.
        QObject::connect(putBackAction, &QAction::changed, button, [=] {
            button->setEnabled(button->isEnabled() && putBackAction->isEnabled());
        });
        QObject::connect(button, &QPushButton::clicked, q, [this, dialog] {
            dialog->close();
            putBack();
        });
    }
    dialog->addCloseButton();
    dialog->setContents(text, {tr("Feature"), tr("File"), tr("Reason")}, rows);
    show(dialog, &m_results);
}

void OrvSettingsMenuPrivate::putBack()
{
    if (!m_before.isEmpty())
        write(tr("Putting the settings back..."), m_before, true);
}

void OrvSettingsMenuPrivate::compare(const QString &fileName)
{
    const auto result = std::make_shared<OrvCameraSettings::Result>();
    run(
        tr("Reading the settings of the camera..."),
        [=, camera = map](const SettingsProgress &progress) {
            *result = OrvCameraSettings::compare(*camera, fileName, progress);
        },
        [=] { showComparison(fileName, *result); });
}

void OrvSettingsMenuPrivate::showComparison(const QString &fileName,
                                            const OrvCameraSettings::Result &result)
{
    if (!result.error.isEmpty())
        return say(QMessageBox::Critical, result.error);
    if (result.isCancelled)
        return;
    const SettingsTable::Rows rows = rowsOf(result);
    auto *dialog = newDialog(tr("Compare Settings"), "SettingsComparison");
    QPushButton *other = dialog->addButton(tr("Compare with Another File..."));
    QObject::connect(other, &QPushButton::clicked, q, [=] {
        askForFile(
            QFileDialog::AcceptOpen, tr("Compare with Another File"),
            [this, fileName, open = QPointer<SettingsTableDialog>(dialog)](const QString &right) {
                if (open)
                    compareFiles(open, fileName, right);
            });
    });
    dialog->addCloseButton();
    const QString name = baseName(fileName);
    dialog->setContents(rows.isEmpty()
                            ? tr("The camera has all values of %1.").arg(name)
                            : tr("This is not the same in %1 and in the camera:").arg(name),
                        {tr("Feature"), name, tr("Camera")}, rows);
    show(dialog, &m_results);
}

void OrvSettingsMenuPrivate::compareFiles(SettingsTableDialog *dialog, const QString &left,
                                          const QString &right)
{
    const OrvCameraSettings::Result result = OrvCameraSettings::compare(left, right);
    if (!result.error.isEmpty())
        return say(QMessageBox::Critical, result.error);
    const SettingsTable::Rows rows = rowsOf(result);
    const QString leftName = baseName(left);
    const QString rightName = baseName(right);
    const QString text = rows.isEmpty() ? tr("%1 and %2 have the same values.")
                                        : tr("This is not the same in %1 and in %2:");
    dialog->setContents(text.arg(leftName, rightName), {tr("Feature"), leftName, rightName}, rows);
}

void OrvSettingsMenuPrivate::fillUserSets()
{
    m_userSets.clear();
    qDeleteAll(m_userSets.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly));
    if (!map)
        return;
    const UserSets sets(*map);
    if (sets.canLoad())
        addUserSets(tr("Load"), sets.names(),
                    tr("Load %1? The present settings of the camera are lost."), &UserSets::load);
    if (sets.canSave())
        addUserSets(tr("Save"), sets.names(),
                    tr("Save the present settings of the camera in %1? What is there is lost."),
                    &UserSets::save);
    if (sets.canStartWith())
        addUserSets(tr("Start with"), sets.startNames(), QString(), &UserSets::startWith);
}

void OrvSettingsMenuPrivate::addUserSets(const QString &title, const QStringList &names,
                                         const QString &question,
                                         QString (UserSets::*act)(const QString &))
{
    QMenu *menu = m_userSets.addMenu(title);
    const bool isChoice = question.isEmpty();
    const QString chosen = isChoice ? UserSets(*map).knownStart() : QString();
    auto *group = new QActionGroup(menu);
    for (const QString &name : names) {
        QAction *action = menu->addAction(cameraText(name, LongestName));
        if (isChoice) {
            action->setCheckable(true);
            action->setChecked(name == chosen);
            group->addAction(action);
        }
        const auto doIt = [=] {
            const auto error = std::make_shared<QString>();
            run(
                tr("The camera is busy with its user sets..."),
                [=, camera = map](const SettingsProgress &) {
                    *error = (UserSets(*camera).*act)(name);
                    if (act == &UserSets::load)
                        camera->InvalidateNodes();
                },
                [=] {
                    if (!error->isEmpty())
                        say(QMessageBox::Critical, *error);
                    if (act != &UserSets::load)
                        return;
                    FeatureJournal::of(map)->startAnew();
                    emit q->valuesReplaced();
                });
        };
        QObject::connect(action, &QAction::triggered, q, [=] {
            if (isChoice)
                doIt();
            else
                ask(question.arg(name), title, doIt);
        });
    }
}

OrvSettingsMenu::OrvSettingsMenu(QWidget *window)
    : QObject(window), d(new OrvSettingsMenuPrivate(this, window))
{
}

OrvSettingsMenu::~OrvSettingsMenu() = default;

void OrvSettingsMenu::setNodeMap(GenApi::INodeMap *map)
{
    if (map != d->map)
        d->setNodeMap(map);
}

void OrvSettingsMenu::addTo(QMenu *menu, QAction *before)
{
    menu->insertActions(before, actions());
}

QList<QAction *> OrvSettingsMenu::actions() const
{
    return {d->saveAction, d->loadAction, d->putBackAction, d->compareAction, d->userSetsAction};
}

void OrvSettingsMenu::save(const QString &fileName)
{
    d->save(fileName);
}

void OrvSettingsMenu::load(const QString &fileName)
{
    d->load(fileName);
}

void OrvSettingsMenu::compare(const QString &fileName)
{
    d->compare(fileName);
}

void OrvSettingsMenu::putBack()
{
    d->putBack();
}

} // namespace OrvGui
