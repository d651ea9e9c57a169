#include "Symbols.h"
#include "Catalog.h"
#include "GroupListModel.h"
#include "ReportBadges.h"
#include "Tones.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class SymbolsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyGlyphIsInItsSquare()
    {
        const QStringList names = Symbols::names() + QStringList(u"of no such name"_s);
        const QRectF square(0, 0, 1, 1);
        for (const QString &name : names) {
            const QRectF bounds = Symbols::outline(name).boundingRect();
            QVERIFY2(square.contains(bounds) && bounds.width() > 0.3, qPrintable(name));
            QVERIFY2(qAbs(bounds.center().x() - 0.5) < 0.1 && qAbs(bounds.center().y() - 0.5) < 0.15, qPrintable(name));
        }
        QVERIFY(Symbols::outline(u"trash"_s) != Symbols::outline(u"xmark"_s));
        QCOMPARE(Symbols::outline(u"of no such name"_s), Symbols::outline({}));
    }

    void everyNameIsKnown()
    {
        QStringList named;
        for (const AppItem &item : Catalog::items())
            named.append(item.symbol);
        const GroupListModel groups;
        for (int row = 0; row < groups.rowCount(); ++row)
            named.append(groups.index(row).data(GroupListModel::symbol).toString());
        for (int kind = 0; kind < 3; ++kind)
            named.append(Tones::toast(kind).symbol);

        static const QRegularExpression use(u"[sS]ymbol: \"([^\"]+)\""_s);
        for (QDirIterator views(QStringLiteral(VIEWS), {u"*.qml"_s}); views.hasNext();) {
            QFile view(views.next());
            QVERIFY(view.open(QIODevice::ReadOnly));
            for (auto uses = use.globalMatch(QString::fromUtf8(view.readAll())); uses.hasNext();)
                named.append(uses.next().captured(1));
        }
        QVERIFY(named.size() > 50);
        for (const QString &name : named)
            QVERIFY2(Symbols::names().contains(name), qPrintable(name));
    }

    /// An application looks the same on the screen and in the PDF, but for a receipt of mere acquisition.
    void tonesAreThoseOnPaper()
    {
        const auto compare = [](const QString &state, const Tone &tone, const ReportBadge &badge) {
            QVERIFY2(tone.text == badge.text && tone.fill == badge.fill, qPrintable(state));
        };
        using State = AppLicenseEvidenceState;
        for (int place = 0; place <= static_cast<int>(State::explicitUnlicensed); ++place) {
            const auto state = static_cast<State>(place);
            const QString word = rawValue(state);
            if (state != State::acquisitionReceipt)
                compare(word, Tones::licence(word), MacReportPDF::licenseEvidenceBadge(state, false));
        }
        for (const QString &status : {u"valid"_s, u"invalid"_s, u"unsigned"_s, u"ad-hoc"_s, u"detected"_s})
            compare(status, Tones::signature(status), MacReportPDF::signatureBadge(status, false));
    }
};

QTEST_MAIN(SymbolsTest)

#include "SymbolsTest.moc"
