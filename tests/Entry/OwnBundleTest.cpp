// The bundle around the program, as a Mac reads it.

#include "AppLanguage.h"
#include "Bundle.h"
#include "FileManager.h"

#include <QImageReader>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class OwnBundleTest : public QObject
{
    Q_OBJECT

    const QString m_contents = QStringLiteral(CONTENTS);
    const QVariantMap m_info = Bundle::infoDictionary(FileManager(), QStringLiteral(CONTENTS "/.."));

private Q_SLOTS:
    void information()
    {
        const auto text = [this](const QString &key) { return m_info.value(key).toString(); };
        QCOMPARE(text(u"CFBundleShortVersionString"_s), QStringLiteral(VERSION));
        QVERIFY(text(u"CFBundleVersion"_s).toInt() > 0 && text(u"LSMinimumSystemVersion"_s).toDouble() >= 12);
        QVERIFY(FileManager().isExecutableFile(m_contents + u"/MacOS/"_s + text(u"CFBundleExecutable"_s)));
        QVERIFY(QFile::exists(m_contents + u"/Resources/"_s + text(u"CFBundleIconFile"_s) + u".icns"_s));
        for (const char *key : {"CFBundleName", "CFBundleDisplayName", "NSHumanReadableCopyright"})
            QVERIFY2(text(QLatin1StringView(key)).contains(u"Tavelo"_s), key);
        for (const char *key : {"NSHighResolutionCapable", "NSRequiresAquaSystemAppearance"})
            QCOMPARE(m_info.value(QLatin1StringView(key)), QVariant(true));
        QStringList languages;
        for (const AppLanguage language : AppLanguages::supported())
            languages << (language == AppLanguage::chinese ? u"zh-Hans"_s : rawValue(language));
        QCOMPARE(m_info.value(u"CFBundleLocalizations"_s).toStringList(), languages);
        QVERIFY(languages.contains(text(u"CFBundleDevelopmentRegion"_s)));
    }

    /// A square with a free margin, and the letter in it, in every size.
    void icon()
    {
        QImageReader reader(m_contents + u"/Resources/AppIcon.icns"_s, "icns");
        QList<int> sides;
        for (int index = 0; reader.jumpToImage(index); ++index) {
            const QImage image = reader.read();
            const auto at = [&image](double x, double y) {
                return image.pixelColor(int(x * image.width()), int(y * image.height())).rgba();
            };
            sides << image.width();
            QCOMPARE(image.height(), image.width());
            QCOMPARE(at(.06, .5), 0u);
            QCOMPARE(at(.5, .94), 0u);
            QCOMPARE(at(.22, .22), 0xffffffff);
            QCOMPARE(at(.5, .5), 0xff4f5661);
        }
        std::sort(sides.begin(), sides.end());
        QCOMPARE(sides, QList<int>({32, 64, 128, 256, 256, 512, 512, 1024}));
    }
};

QTEST_GUILESS_MAIN(OwnBundleTest)
#include "OwnBundleTest.moc"
