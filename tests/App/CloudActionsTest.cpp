// The cloud actions of the view model, from a person's click to the local cloud and back.

#include "Catalog.h"
#include "Golden.h"
#include "NetworkTransport.h"
#include "ProgramOnAMac.h"
#include "RunningCloud.h"
#include "WatchedViewModel.h"

#include <QDirIterator>
#include <QNetworkProxyFactory>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class CloudActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        m_cloud.trust();
    }

    void transcript()
    {
        ProgramOnAMac mac;
        mac.environment.insert(u"TAVELO_SUPABASE_URL"_s, m_cloud.url());
        mac.environment.insert(u"TAVELO_SUPABASE_ANON_KEY"_s, u"local-anon-key"_s);
        const QString link = u"https://downloads.tavelo.invalid/a%20b.DMG?x"_s;
        m_cloud.write(u"release-policy.json"_s,
                      QByteArray(R"({"update_available": true, "latest_version": "2.0", "message": "Own",)"
                                 R"("download_url": "LINK"})")
                          .replace("LINK", link.toUtf8()));
        m_cloud.write(u"app_catalog.json"_s, R"([{"item_id": "vlc", "is_active": false}])");
        m_cloud.write(u"business.json"_s, R"({"policies": [{"policy": {"allowed_item_ids": ["gimp", "evince"]}}]})");
        WatchedViewModel model(mac.services(), {}, std::make_unique<NetworkTransport>());
        QTRY_VERIFY_WITH_TIMEOUT(model->releasePolicy(), 20000);
        model.settle();
        QCOMPARE(model.take().filter(u"policy"_s), QStringList(u"log: Release policy báo có bản mới 2.0."_s));
        QVERIFY(!model->toast().isShown());
        QCOMPARE(model->updateMessage(), u"Own"_s);
        mac.takeCalls();
        model->openReleaseDownload();
        model.settle();
        QCOMPARE(mac.takeCalls(), QStringList(u"open "_s + link));
        QCOMPARE(model.take(),
                 QStringList({u"currentAction = Opening update download"_s, u"log: Mở link update: "_s + link}));
        m_cloud.takeRequests();

        QString transcript;
        const auto scene = [&](const QString &title, const std::function<void()> &action) {
            const QUuid before = model->toast().id;
            action();
            QTRY_VERIFY_WITH_TIMEOUT(model->toast().id != before, 20000);
            model.settle();
            transcript += u"== %1\n%2\n\n"_s.arg(title, model.take().join(u'\n'));
        };
        scene(u"sync"_s, [&] { model->syncCatalog(); });
        scene(u"organisation"_s, [&] { model->businessDeviceConfig(u"update"_s, u"Kế toán"_s, u"A-1"_s); });
        scene(u"workspace"_s, [&] { model->syncTechnicianWorkspace(); });
        scene(u"branding"_s, [&] { model->updateTechnicianBranding(u"Cửa hàng"_s); });
        scene(u"profile"_s, [&] { model->saveTechnicianProfile(u"Chuẩn"_s, u" "_s); });
        scene(u"profile of one's own"_s, [&] { model->saveTechnicianProfile(u"Riêng"_s, u"vlc,gimp"_s); });
        scene(u"upload"_s, [&] { model->uploadReport(); });
        const QString sent = m_cloud.takeRequests().join(u'\n');
        for (
            const QString &body :
            {uR"({"action":"save_profile","item_ids":["evince"],"name":"Chuẩn"})"_s,
             uR"("items":[{"group_key":"office","item_id":"libreoffice","kind":"cask","name":"LibreOffice + Vietnamese",)"_s,
             uR"("summary":{"installed":4,"total":%1}})"_s // the whole catalog, whatever is shown of it
                 .arg(Catalog::uniqueInstallItems(Catalog::items()).size())})
            QVERIFY2(sent.contains(body), qPrintable(body));
        m_cloud.disturb(u"{\"status\": 401, \"body\": \"{\\\"error\\\": \\\"x\\\", \\\"detail\\\": \\\"y\\\"}\"}"_s);
        scene(u"refused"_s, [&] { model->uploadReport(); });
        m_cloud.disturb(u"{\"status\": 500, \"body\": \"0123456789\", \"repeat\": 1000}"_s);
        model->syncCatalog();
        QTRY_VERIFY_WITH_TIMEOUT(model->cloudOutput().startsWith(u"Không"_s), 20000);
        QCOMPARE(model->cloudOutput().size(), DeskrigViewModel::longestCloudMessage);
        QCOMPARE(model->toast().text, model->cloudOutput());
        QCOMPARE(model->catalogItems().size(), 2);
        WatchedViewModel next(mac.services(), {}, std::make_unique<NetworkTransport>());
        const auto answered = [&] { return next->logLines()->lines().filter(u"Supabase: Không đọc được"_s); };
        QTRY_COMPARE_WITH_TIMEOUT(answered().size(), 1, 20000);
        QVERIFY(answered().constFirst().size() < DeskrigViewModel::longestCloudMessage + 50);
        QDirIterator files(mac.hostPath(u"/Users"_s), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QFile::ReadOnly));
            QVERIFY2(!file.readAll().contains("local-anon-key"), qPrintable(file.fileName()));
        }
        static const QRegularExpression runID(u"[0-9a-f]{8}-[0-9a-f-]{27}"_s);
        QCOMPARE(differencesFromGolden(u"view-model-cloud.txt"_s, transcript.replace(runID, u"…"_s).toUtf8()),
                 QByteArray());
    }

private: // NOLINT(readability-redundant-access-specifiers): not for moc
    RunningCloud m_cloud;
};

QTEST_MAIN(CloudActionsTest)

#include "CloudActionsTest.moc"
