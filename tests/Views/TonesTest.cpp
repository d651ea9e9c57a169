#include "Tones.h"

#include "ReportBadges.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class TonesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// An application looks the same on the screen and in the PDF, but for a receipt of mere acquisition.
    void areThoseOnPaper()
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

QTEST_GUILESS_MAIN(TonesTest)

#include "TonesTest.moc"
