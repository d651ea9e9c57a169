// The whole road in the window: one person, one Mac and one cloud, from the first start to the last.

#include "AppLanguage.h"
#include "Catalog.h"
#include "Driving.h"
#include "NetworkTransport.h"
#include "ReportTexts.h"
#include "RunningCloud.h"
#include "UserDefaults.h"
#include "Workshop.h"

#include <QDir>
#include <QNetworkProxyFactory>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class WholeRoadWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void fromTheFirstStartToTheLast();

private: // NOLINT(readability-redundant-access-specifiers): not for moc
    void checksTheMac(Stage &stage);
    void installsAndRemoves(Stage &stage);
    void meetsAWrongDownload(Stage &stage);
    void reportsInEachLanguage(Stage &stage);
    void obeysItsOrganisation(Stage &stage);
    void isToBeUpdated(Stage &stage);

    /// A click that opens or closes something, which takes a moment.
    void clickAndWait(Stage &stage, const QString &name)
    {
        click(stage, name);
        stage.pass(300);
    }
    void closeSheet(Stage &stage)
    {
        key(stage, Qt::Key_Escape);
        stage.pass(300);
    }
    /// Until the last task is done and the toast has gone; what the toast said.
    QString outcome(Stage &stage)
    {
        stage.settle();
        const QString text = stage.find(u"toast"_s) ? stage.model().toast().text : u"nothing"_s;
        stage.advance(DeskrigViewModel::toastDuration);
        stage.pass(300);
        return text;
    }
    QString shown(Stage &stage, const QString &name)
    {
        const QQuickItem *const item = stage.find(name);
        return item ? item->property("text").toString() : u"nothing"_s;
    }
    void chooseLanguage(Stage &stage, AppLanguage language);

    RunningCloud m_cloud;
    ProgramOnAMac m_mac;
};

void WholeRoadWindowTest::initTestCase()
{
    QNetworkProxyFactory::setUseSystemConfiguration(false);
    m_cloud.trust();
    m_mac.environment.insert(u"TAVELO_SUPABASE_URL"_s, m_cloud.url());
    m_mac.environment.insert(u"TAVELO_SUPABASE_ANON_KEY"_s, u"local-anon-key"_s);
}

void WholeRoadWindowTest::fromTheFirstStartToTheLast()
{
    failOnWarnings();
    // Each part goes on where the one before has left the Mac.
    const std::vector<void (WholeRoadWindowTest::*)(Stage &)> days[] = {
        {&WholeRoadWindowTest::checksTheMac, &WholeRoadWindowTest::installsAndRemoves,
         &WholeRoadWindowTest::meetsAWrongDownload, &WholeRoadWindowTest::reportsInEachLanguage,
         &WholeRoadWindowTest::obeysItsOrganisation},
        {&WholeRoadWindowTest::isToBeUpdated}};
    for (const auto &day : days) {
        const bool isLast = &day == &days[1];
        m_cloud.write(u"release-policy.json"_s, isLast ? R"({"update_required": true, "title": "Update!"})" : "{}");
        Stage stage(m_mac, std::make_unique<NetworkTransport>());
        stage.settle();
        for (const auto part : day) {
            (this->*part)(stage);
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void WholeRoadWindowTest::checksTheMac(Stage &stage)
{
    click(stage, u"system-check-button"_s);
    QCOMPARE(outcome(stage), u"Report written"_s);
    QVERIFY(stage.model().latestChecks()->rowCount() > 0);
    QCOMPARE(stage.model().reportApplications()->rowCount(), 0);
    QVERIFY(stage.model().reportText().contains(u"\n- None detected.\n"));
    closeSheet(stage);
    QCOMPARE(stage.model().sheetKind(), SheetKind::none);
}

void WholeRoadWindowTest::installsAndRemoves(Stage &stage)
{
    click(stage, u"install-standard-button"_s);
    QCOMPARE(outcome(stage), u"Finished preset standard set"_s);
    QCOMPARE(stage.model().installedCount(), 15);
    click(stage, u"group-printer"_s);
    QCOMPARE(shown(stage, u"status-pdfarranger"_s), u"Installed"_s);
    clickAndWait(stage, u"remove-pdfarranger"_s);
    click(stage, u"remove-confirm-button"_s);
    QCOMPARE(outcome(stage), u"Removed PDFsam Basic"_s);
    QCOMPARE(shown(stage, u"status-pdfarranger"_s), u"Not installed"_s);
    QCOMPARE(stage.model().installedCount(), 14);
    QVERIFY(!m_mac.exists(u"/Applications/PDFsam Basic.app"_s));
}

void WholeRoadWindowTest::meetsAWrongDownload(Stage &stage)
{
    const QString address = catalogItem(u"telegram"_s).directInstaller->url;
    m_mac.furnish(u"set-download"_s, {address, u"--file"_s, m_mac.hostPath(u"/etc/hosts"_s)});
    click(stage, u"group-meeting"_s);
    click(stage, u"install-telegram"_s);
    QCOMPARE(outcome(stage), u"Failed Telegram Desktop"_s);
    QCOMPARE(shown(stage, u"status-telegram"_s), u"Failed"_s);
    click(stage, u"install-slack"_s);
    QCOMPARE(outcome(stage), u"Processed Slack"_s);
    QCOMPARE(shown(stage, u"status-telegram"_s), u"Failed"_s);
}

void WholeRoadWindowTest::chooseLanguage(Stage &stage, AppLanguage language)
{
    clickAndWait(stage, u"settings-button"_s);
    click(stage, u"language-picker"_s);
    key(stage, Qt::Key_Home);
    for (int step = 0; step < int(language); ++step)
        key(stage, Qt::Key_Down);
    key(stage, Qt::Key_Return);
    clickAndWait(stage, u"settings-done-button"_s);
    QCOMPARE(stage.model().language(), language);
}

void WholeRoadWindowTest::reportsInEachLanguage(Stage &stage)
{
    click(stage, u"audit-sidebar-button"_s);
    stage.settle();
    const QStringList names = stage.model().reportText().split(u'\n').filter(u" • signature="_s);
    QCOMPARE(names.size(), stage.model().reportApplications()->rowCount());
    QVERIFY(names.size() > 8);
    for (const AppLanguage language : AppLanguages::supported()) {
        chooseLanguage(stage, language);
        if (QTest::currentTestFailed())
            return;
        clickAndWait(stage, u"report-button"_s);
        click(stage, u"scan-again-button"_s);
        QCOMPARE(outcome(stage), AppStrings(language).auditComplete(names.size()));
        const QString text = stage.model().reportText();
        QVERIFY(text.contains(u'\n' + reportTexts(language).catalogHeading + u'\n'));
        QCOMPARE(QStringList(text.split(u'\n').filter(u" • signature="_s)), names);
        QVERIFY(text.contains(u"- Telegram Desktop [telegram]: "_s + reportTexts(language).notInstalled + u'\n'));

        if (stage.model().reportProfile().inspectorName.isEmpty()) {
            click(stage, u"inspector-field"_s);
            type(stage, u"Lan"_s);
        }
        clickAndWait(stage, u"export-button"_s);
        QTRY_VERIFY(isEnabled(stage, u"save-button"_s));
        type(stage, rawValue(language)); // in place of what is proposed
        m_mac.takeCalls();
        key(stage, Qt::Key_Return);
        QCOMPARE(outcome(stage), AppStrings(language).screenText(ScreenText::pdfExported));
        const QString pdf = u"/Users/technician/Documents/%1.pdf"_s.arg(rawValue(language));
        QVERIFY(m_mac.contents(pdf).startsWith("%PDF"));
        QCOMPARE(m_mac.takeCalls().filter(u"open "_s), QStringList(u"open "_s + pdf));
        closeSheet(stage);
    }
}

void WholeRoadWindowTest::obeysItsOrganisation(Stage &stage)
{
    const auto ask = [&](const QString &button) {
        clickAndWait(stage, u"cloud-tools-button"_s);
        const QUuid before = stage.model().toast().id;
        click(stage, button);
        const bool isAnswered = QTest::qWaitFor([&] { return stage.model().toast().id != before; });
        closeSheet(stage);
        return isAnswered ? outcome(stage) : u"no answer"_s;
    };
    const QString done = u"Đã áp 1 policy từ Business organization."_s;
    click(stage, u"group-media"_s);
    m_cloud.write(u"business.json"_s, R"({"policies": [{"policy": {"allowed_item_ids": []}}]})");
    QCOMPARE(ask(u"fetch-configuration-button"_s), done);
    QCOMPARE(stage.find(u"item-list"_s)->property("count").toInt(), 0);
    m_cloud.write(u"business.json"_s, R"({"policies": [{"policy": {"disabled_item_ids": ["vlc"]}}]})");
    QCOMPARE(ask(u"fetch-configuration-button"_s), done);
    m_cloud.write(u"app_catalog.json"_s, R"([{"item_id": "inkscape", "is_active": false}])");
    QCOMPARE(ask(u"sync-catalog-button"_s), u"Đã đồng bộ 1 app từ Supabase."_s);
    for (const auto &hidden : {u"install-vlc"_s, u"install-inkscape"_s})
        QVERIFY(!stage.find(hidden));

    click(stage, u"install-full-button"_s);
    QCOMPARE(outcome(stage), stage.model().strings().presetFailures(1)); // Telegram, still
    QCOMPARE(shown(stage, u"status-gimp"_s), reportTexts(stage.model().language()).installed);
    QCOMPARE(m_mac.takeCalls().filter(QRegularExpression(u"^brew install.*(vlc|inkscape|gimp)"_s)),
             QStringList(u"brew install --cask gimp"_s));
}

void WholeRoadWindowTest::isToBeUpdated(Stage &stage)
{
    // What was chosen, typed in and exported last is there again, and so is the organisation's word.
    QCOMPARE(stage.model().language(), AppLanguage::chinese);
    QCOMPARE(stage.model().reportProfile().inspectorName, u"Lan"_s);
    QVERIFY(stage.model().reportText().contains(reportTexts(AppLanguage::chinese).catalogHeading));
    QCOMPARE(stage.model().catalogItems().size(), Catalog::items().size() - 2);

    QTRY_VERIFY(stage.find(u"force-update-banner"_s));
    QCOMPARE(outcome(stage), u"Update!"_s);
    m_mac.takeCalls();
    for (const auto &button : {u"install-standard-button"_s, u"install-full-button"_s}) {
        click(stage, button);
        QVERIFY(!stage.model().isInstalling());
        QCOMPARE(outcome(stage), u"nothing"_s);
    }
    click(stage, u"group-printer"_s);
    click(stage, u"install-pdfarranger"_s);
    QCOMPARE(outcome(stage), AppStrings(AppLanguage::chinese).updateRequiredToast());
    QCOMPARE(m_mac.takeCalls(), QStringList());
    QVERIFY(stage.find(u"force-update-banner"_s));

    // The command line is bound by neither.
    const auto plan = m_mac.run(u"--preset full"_s, "n\n");
    QCOMPARE(plan.status, 130);
    QVERIFY(plan.output.contains(u"\n- VLC (cask)\n"));
}

QTEST_MAIN(WholeRoadWindowTest)

#include "WholeRoadWindowTest.moc"
