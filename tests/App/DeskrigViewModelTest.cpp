#include "WatchedViewModel.h"

#include "Catalog.h"
#include "Golden.h"
#include "ProgramOnAMac.h"
#include "Workshop.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class DeskrigViewModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations();
};

void DeskrigViewModelTest::operations()
{
    const ProgramOnAMac mac;
    WatchedViewModel model(mac.services());
    QString transcript;
    const auto scene = [&](const QString &title) {
        model.settle();
        transcript += u"== %1\n%2\n\n"_s.arg(title, model.take().join(u'\n'));
    };
    model.settle();
    model.take();
    const AppItem vlc = catalogItem(u"vlc"_s);
    model->install(vlc);
    model->install(vlc);
    scene(u"install"_s);
    model->performPrimaryAction(vlc);
    scene(u"open"_s);
    model->askToUninstall(vlc);
    model->confirmUninstall(vlc);
    scene(u"remove"_s);
    mac.furnish(u"break-tool"_s, {u"brew"_s, u"--status"_s, u"1"_s, u"--when"_s, u"install"_s});
    model->install(vlc);
    scene(u"failed install"_s);
    model.advance(std::chrono::milliseconds(2300));
    scene(u"later"_s);
    QCOMPARE(differencesFromGolden(u"view-model-operations.txt"_s, transcript.toUtf8()), QByteArray());
}

QTEST_MAIN(DeskrigViewModelTest)

#include "DeskrigViewModelTest.moc"
