#include "Stage.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

const QByteArray demandedUpdate = R"({"update_required": true, "title": "Update required",
    "message": "This version no longer gets fixes. Install Tavelo Deskrig 2.0 or newer to go on.",
    "latest_version": "2.0"})";

/// The application of which there is the most to tell.
int mostTelling(const QList<InstalledMacApplication> &applications)
{
    const auto weight = [](const InstalledMacApplication &application) {
        const AppLicenseEvidence evidence = application.licenseEvidence.value_or(AppLicenseEvidence());
        return std::pair(-int(evidence.confidence.value_or(LicenseEvidenceConfidence::none)),
                         evidence.signals ? evidence.signals->size() : 0);
    };
    const auto most = std::ranges::max_element(applications, {}, weight);
    return int(most - applications.begin());
}

/// A tour of the window in one language: every screen and state, a picture each.
class Tour
{
public:
    Tour(const QString &folder, AppLanguage language, QSize size) : m_folder(folder), m_language(language), m_size(size)
    {
        QDir().mkpath(folder);
    }

    void take()
    {
        const ProgramOnAMac mac;
        before(mac);
        catalog(mac);
        const ProgramOnAMac populated;
        populated.furnish(u"populate"_s, {});
        // Calls itself by a path, to see what comes of that: no sight for the first row of every picture.
        QDir(populated.hostPath(u"/Applications/Escape.app"_s)).removeRecursively();
        sheets(populated);
        update(populated);
        inMotion(populated);
    }

private:
    std::unique_ptr<Stage> stage(const ProgramOnAMac &mac, const QByteArray &policy = {})
    {
        m_stage = nullptr;
        auto stage = std::make_unique<Stage>(mac, m_language, policy);
        stage->resize(m_size);
        m_stage = stage.get();
        return stage;
    }

    void picture(const QString &name)
    {
        m_stage->picture().save(u"%1/%2-%3.png"_s.arg(m_folder).arg(++m_number, 2, 10, '0'_L1).arg(name));
    }

    /// What there is before the first scan.
    void before(const ProgramOnAMac &mac)
    {
        const auto on = stage(mac);
        on->settle();
        picture(u"catalog-fresh"_s);
        on->model().selectGroup(u"audit"_s);
        on->settle();
        picture(u"audit-empty"_s);
        on->model().openReport();
        on->settle();
        picture(u"report-empty"_s);
        on->model().startReportPDFExport();
        on->pass(400);
        picture(u"report-refused"_s);
    }

    /// The rows in all their states, and what an operation shows.
    void catalog(const ProgramOnAMac &mac)
    {
        const auto on = stage(mac);
        DeskrigViewModel &model = on->model();
        on->settle();
        for (const auto &id : {u"libreoffice"_s, u"microsoft-365"_s, u"scanner-tools"_s}) {
            model.performPrimaryActionOf(id);
            on->settle();
        }
        picture(u"toast-success"_s);
        mac.furnish(u"break-tool"_s, {u"brew"_s, u"--status"_s, u"1"_s, u"--when"_s, u"install"_s});
        model.performPrimaryActionOf(u"office-fonts"_s);
        on->settle();
        picture(u"toast-failure"_s);
        on->advance(std::chrono::seconds(3));
        model.setShowLogDrawer(false);
        on->settle();
        picture(u"catalog"_s);
        press(u"install-libreoffice"_s);
        picture(u"button-pressed"_s);
        QTest::mouseRelease(&on->window(), Qt::LeftButton);
        model.askToUninstallItem(u"libreoffice"_s);
        on->settle();
        picture(u"remove-prompt"_s);
        model.cancelUninstall();
        for (const auto &group : {u"office"_s, u"microsoft"_s, u"printer"_s, u"meeting"_s, u"media"_s}) {
            model.selectGroup(group);
            on->settle();
            picture(u"group-"_s + group);
        }
        mac.furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"2"_s});
        model.selectGroup(u"all"_s);
        model.performPrimaryActionOf(u"office-fonts"_s);
        on->pass(1200);
        picture(u"operation"_s);
        on->settle();
        mac.furnish(u"break-tool"_s, {u"brew"_s, u"--mend"_s});
        model.selectGroup(u"media"_s);
        model.performPrimaryActionOf(u"rclone"_s);
        on->settle();
        picture(u"item-unsupported"_s);
        on->advance(std::chrono::seconds(3));
        model.showItem(u"libreoffice"_s);
        on->settle();
        picture(u"item-detail"_s);
    }

    void sheets(const ProgramOnAMac &mac)
    {
        const auto on = stage(mac);
        DeskrigViewModel &model = on->model();
        on->settle();
        model.openSheet(SheetKind::settings);
        on->settle();
        picture(u"settings"_s);
        if (QQuickItem *const picker = on->find(u"language-picker"_s))
            picker->property("popup").value<QObject *>()->setProperty("visible", true);
        on->pass(300);
        picture(u"settings-languages"_s);
        model.dismissSheet();
        on->settle();
        model.openSheet(SheetKind::cloudTools);
        on->settle();
        picture(u"cloud-tools"_s);
        model.syncCatalog();
        on->settle();
        picture(u"cloud-tools-answer"_s);
        model.dismissSheet();
        on->advance(std::chrono::seconds(3));
        on->settle();
        mac.furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"1"_s});
        model.openSheet(SheetKind::systemChecks);
        on->pass(500);
        picture(u"system-checks"_s);
        mac.furnish(u"break-tool"_s, {u"brew"_s, u"--mend"_s});
        on->settle();
        picture(u"report"_s);
        if (QQuickItem *const list = on->find(u"report-list"_s))
            list->setProperty("contentY", 420);
        on->pass(100);
        picture(u"report-table"_s);
        model.setReportProfile({.inspectorName = u"Nguyễn Thị Minh Khai"_s, .subject = u"Kiểm kê phòng kế toán"_s});
        const QDir documents(mac.hostPath(u"/Users/technician/Documents"_s));
        documents.mkdir(u"Phòng kế toán"_s);
        QFile(documents.filePath(u"tavelo-deskrig-report.pdf"_s)).open(QIODevice::WriteOnly);
        model.startReportPDFExport();
        on->pass(400);
        picture(u"save-panel"_s);
        QTest::keyClick(&on->window(), Qt::Key_Return);
        on->pass(400);
        picture(u"save-replace"_s);
        QTest::keyClick(&on->window(), Qt::Key_Escape);
        model.cancelReportPDFExport();
        model.dismissSheet();
        on->advance(std::chrono::seconds(3));
        on->settle();
        model.selectGroup(u"audit"_s);
        on->settle();
        picture(u"audit"_s);
        model.scanMac();
        while (model.isReportRefreshing() && model.auditProgress() < 0.3)
            on->pass(5);
        picture(u"audit-scanning"_s);
        on->settle();
        on->advance(std::chrono::seconds(3));
        model.showApplication(mostTelling(model.reportApplications()->records()));
        on->settle();
        picture(u"audit-detail"_s);
    }

    void update(const ProgramOnAMac &mac)
    {
        const auto on = stage(mac, demandedUpdate);
        on->settle();
        picture(u"update-required"_s);
        on->model().askToUninstallItem(u"vlc"_s);
        on->settle();
        picture(u"toast-warning"_s);
    }

    /// What is there for a moment only.
    void inMotion(const ProgramOnAMac &mac)
    {
        {
            mac.furnish(u"break-tool"_s, {u"xcode-select"_s, u"--delay"_s, u"1"_s});
            const auto on = stage(mac);
            on->model().openSheet(SheetKind::systemChecks);
            on->pass(400);
            picture(u"system-checks-waiting"_s);
        }
        mac.furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"2"_s});
        m_stage = nullptr;
        Stage on(mac, m_language, demandedUpdate);
        m_stage = &on;
        on.model().performPrimaryActionOf(u"vlc"_s); // before the update is demanded
        on.resize(m_size);
        on.pass(600);
        picture(u"both-banners"_s);
        if (QQuickItem *const banner = on.find(u"operation-banner"_s))
            banner->parentItem()->parentItem()->setProperty("share", 0.5);
        on.pass(400);
        picture(u"banner-halfway"_s);
    }

    /// The button of that name goes down, and does not come up.
    void press(const QString &name)
    {
        if (const QQuickItem *const button = m_stage->find(name))
            QTest::mousePress(&m_stage->window(), Qt::LeftButton, {},
                              button->mapToScene({button->width() / 2, button->height() / 2}).toPoint());
        m_stage->pass(100);
    }

    QString m_folder;
    AppLanguage m_language;
    QSize m_size;
    Stage *m_stage = nullptr;
    int m_number = 0;
};

} // namespace

/// DIR WIDTH HEIGHT [LANGUAGE …]
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4)
        return 2;
    const QSize size(arguments.at(2).toInt(), arguments.at(3).toInt());
    for (const AppLanguage language : AppLanguages::supported()) {
        const QString code = rawValue(language);
        if (arguments.size() == 4 || arguments.mid(4).contains(code))
            Tour(u"%1/%2"_s.arg(arguments.at(1), code), language, size).take();
    }
    return 0;
}
