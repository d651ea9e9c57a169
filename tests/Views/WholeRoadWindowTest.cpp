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

class WholeRoadWindowTest : public WindowDriver
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        m_cloud.trust();
    }
    void fromTheFirstStartToTheLast();

private: // NOLINT(readability-redundant-access-specifiers): not for moc
    void checksTheMac();
    void installsAndRemoves();
    void meetsAWrongDownload();
    void reportsInEachLanguage();
    void obeysItsOrganisation();
    void isToBeUpdated();

    void chooseLanguage(AppLanguage language);
    /// Until the last task is done and the toast has gone; what the toast said.
    QString outcome()
    {
        settle();
        const QString text = find(u"toast"_s) ? model().toast().text : u"nothing"_s;
        stage().advance(DeskrigViewModel::toastDuration);
        settle();
        return text;
    }

    RunningCloud m_cloud;
};

void WholeRoadWindowTest::fromTheFirstStartToTheLast()
{
    mac().environment.insert(u"TAVELO_SUPABASE_URL"_s, m_cloud.url());
    mac().environment.insert(u"TAVELO_SUPABASE_ANON_KEY"_s, u"local-anon-key"_s);
    // Each part goes on where the one before has left the Mac.
    const std::vector<void (WholeRoadWindowTest::*)()> days[] = {
        {&WholeRoadWindowTest::checksTheMac, &WholeRoadWindowTest::installsAndRemoves,
         &WholeRoadWindowTest::meetsAWrongDownload, &WholeRoadWindowTest::reportsInEachLanguage,
         &WholeRoadWindowTest::obeysItsOrganisation},
        {&WholeRoadWindowTest::isToBeUpdated}};
    for (const auto &day : days) {
        const bool isLast = &day == &days[1];
        m_cloud.write(u"release-policy.json"_s, isLast ? R"({"update_required": true, "title": "Update!"})" : "{}");
        openAndSettle(std::make_unique<NetworkTransport>());
        for (const auto part : day) {
            (this->*part)();
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void WholeRoadWindowTest::checksTheMac()
{
    click(u"system-check-button"_s);
    QCOMPARE(outcome(), u"Report written"_s);
    QVERIFY(model().latestChecks()->rowCount() > 0);
    QCOMPARE(model().reportApplications()->rowCount(), 0);
    QVERIFY(model().reportText().contains(u"\n- None detected.\n"));
    keyAndSettle(Qt::Key_Escape);
    QCOMPARE(model().sheetKind(), SheetKind::none);
}

void WholeRoadWindowTest::installsAndRemoves()
{
    click(u"group-printer"_s);
    QVERIFY(!isEnabled(u"remove-pdfarranger"_s));
    click(u"install-standard-button"_s);
    QCOMPARE(outcome(), u"Finished preset standard set"_s);
    QCOMPARE(model().installedCount(), 15);
    QCOMPARE(textOf(u"status-pdfarranger"_s), u"Installed"_s);
    clickAndSettle(u"remove-pdfarranger"_s);
    keyAndSettle(Qt::Key_Escape);
    QVERIFY(!find(u"remove-confirm-button"_s) && mac().exists(u"/Applications/PDFsam Basic.app"_s));
    clickAndSettle(u"remove-pdfarranger"_s);
    QCOMPARE(focused(), u"remove-cancel-button"_s);
    click(u"remove-confirm-button"_s);
    QCOMPARE(outcome(), u"Removed PDFsam Basic"_s);
    QCOMPARE(textOf(u"status-pdfarranger"_s), u"Not installed"_s);
    QCOMPARE(model().installedCount(), 14);
    QVERIFY(!mac().exists(u"/Applications/PDFsam Basic.app"_s));
}

void WholeRoadWindowTest::meetsAWrongDownload()
{
    const QString address = catalogItem(u"telegram"_s).directInstaller->url;
    mac().furnish(u"set-download"_s, {address, u"--file"_s, mac().hostPath(u"/etc/hosts"_s)});
    click(u"group-meeting"_s);
    click(u"install-telegram"_s);
    QCOMPARE(outcome(), u"Failed Telegram Desktop"_s);
    QCOMPARE(textOf(u"status-telegram"_s), u"Failed"_s);
    click(u"install-slack"_s);
    QCOMPARE(outcome(), u"Processed Slack"_s);
    QCOMPARE(textOf(u"status-telegram"_s), u"Failed"_s);
}

void WholeRoadWindowTest::chooseLanguage(AppLanguage language)
{
    clickAndSettle(u"settings-button"_s);
    click(u"language-picker"_s);
    key(Qt::Key_Home);
    for (int step = 0; step < int(language); ++step)
        key(Qt::Key_Down);
    key(Qt::Key_Return);
    clickAndSettle(u"settings-done-button"_s);
    QCOMPARE(model().language(), language);
}

void WholeRoadWindowTest::reportsInEachLanguage()
{
    clickAndSettle(u"audit-sidebar-button"_s);
    const QStringList names = model().reportText().split(u'\n').filter(u" • signature="_s);
    QCOMPARE(names.size(), model().reportApplications()->rowCount());
    QVERIFY(names.size() > 8);
    for (const AppLanguage language : AppLanguages::supported()) {
        chooseLanguage(language);
        if (QTest::currentTestFailed())
            return;
        clickAndSettle(u"report-button"_s);
        click(u"scan-again-button"_s);
        QCOMPARE(outcome(), AppStrings(language).auditComplete(names.size()));
        const QString text = model().reportText();
        QVERIFY(text.contains(u'\n' + reportTexts(language).catalogHeading + u'\n'));
        QCOMPARE(QStringList(text.split(u'\n').filter(u" • signature="_s)), names);
        QVERIFY(text.contains(u"- Telegram Desktop [telegram]: "_s + reportTexts(language).notInstalled + u'\n'));

        if (model().reportProfile().inspectorName.isEmpty()) {
            click(u"inspector-field"_s);
            type(u"Lan"_s);
        }
        clickAndSettle(u"export-button"_s);
        QTRY_VERIFY(isEnabled(u"save-button"_s));
        type(rawValue(language)); // in place of what is proposed
        mac().takeCalls();
        key(Qt::Key_Return);
        QCOMPARE(outcome(), AppStrings(language).screenText(ScreenText::pdfExported));
        const QString pdf = u"/Users/technician/Documents/%1.pdf"_s.arg(rawValue(language));
        QVERIFY(mac().contents(pdf).startsWith("%PDF"));
        QCOMPARE(mac().takeCalls().filter(u"open "_s), QStringList(u"open "_s + pdf));
        keyAndSettle(Qt::Key_Escape);
    }
}

void WholeRoadWindowTest::obeysItsOrganisation()
{
    const auto ask = [&](const QString &button) {
        clickAndSettle(u"cloud-tools-button"_s);
        const QUuid before = model().toast().id;
        click(button);
        const bool isAnswered = QTest::qWaitFor([&] { return model().toast().id != before; }, 20000);
        keyAndSettle(Qt::Key_Escape);
        return isAnswered ? outcome() : u"no answer"_s;
    };
    const QString done = u"Đã áp 1 policy từ Business organization."_s;
    click(u"group-media"_s);
    m_cloud.write(u"business.json"_s, R"({"policies": [{"policy": {"allowed_item_ids": []}}]})");
    QCOMPARE(ask(u"fetch-configuration-button"_s), done);
    QCOMPARE(find(u"item-list"_s)->property("count").toInt(), 0);
    m_cloud.write(u"business.json"_s, R"({"policies": [{"policy": {"disabled_item_ids": ["vlc"]}}]})");
    QCOMPARE(ask(u"fetch-configuration-button"_s), done);
    m_cloud.write(u"app_catalog.json"_s, R"([{"item_id": "inkscape", "is_active": false}])");
    QCOMPARE(ask(u"sync-catalog-button"_s), u"Đã đồng bộ 1 app từ Supabase."_s);
    for (const auto &hidden : {u"install-vlc"_s, u"install-inkscape"_s})
        QVERIFY(!find(hidden));

    click(u"install-full-button"_s);
    QCOMPARE(outcome(), model().strings().presetFailures(1)); // Telegram, still
    QCOMPARE(textOf(u"status-gimp"_s), reportTexts(model().language()).installed);
    QCOMPARE(mac().takeCalls().filter(QRegularExpression(u"^brew install.*(vlc|inkscape|gimp)"_s)),
             QStringList(u"brew install --cask gimp"_s));
}

void WholeRoadWindowTest::isToBeUpdated()
{
    // What was chosen, typed in and exported last is there again, and so is the organisation's word.
    QCOMPARE(model().language(), AppLanguage::chinese);
    QCOMPARE(model().reportProfile().inspectorName, u"Lan"_s);
    QVERIFY(model().reportText().contains(reportTexts(AppLanguage::chinese).catalogHeading));
    QCOMPARE(model().catalogItems().size(), Catalog::items().size() - 2);

    QTRY_VERIFY(find(u"force-update-banner"_s));
    QCOMPARE(outcome(), u"Update!"_s);
    mac().takeCalls();
    for (const auto &button : {u"install-standard-button"_s, u"install-full-button"_s}) {
        click(button);
        QVERIFY(!model().isInstalling());
        QCOMPARE(outcome(), u"nothing"_s);
    }
    click(u"group-printer"_s);
    click(u"install-pdfarranger"_s);
    QCOMPARE(outcome(), AppStrings(AppLanguage::chinese).updateRequiredToast());
    QCOMPARE(mac().takeCalls(), QStringList());
    QVERIFY(find(u"force-update-banner"_s));

    // The command line is bound by neither.
    const auto plan = mac().run(u"--preset full"_s, "n\n");
    QCOMPARE(plan.status, 130);
    QVERIFY(plan.output.contains(u"\n- VLC (cask)\n"));
}

QTEST_MAIN(WholeRoadWindowTest)

#include "WholeRoadWindowTest.moc"
