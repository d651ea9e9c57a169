#include "ReportBadges.h"

#include "InstalledMacApplication.h"
#include "ReportColors.h"

#include <QStringMatcher>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo::MacReportPDF
{

namespace
{

/// A badge's colours, by what it says of the application.
struct Mood {
    QColor text;
    QColor fill;
};
constexpr Mood good{QColor(0x16, 0x65, 0x34), QColor(0xDC, 0xFC, 0xE7)};
constexpr Mood bad{QColor(0xB4, 0x23, 0x18), QColor(0xFE, 0xE4, 0xE2)};
constexpr Mood internal{QColor(0xB5, 0x47, 0x08), QColor(0xFF, 0xEA, 0xD5)};
constexpr Mood neutral{QColor(0x47, 0x54, 0x67), QColor(0xF2, 0xF4, 0xF7)};
constexpr Mood informative{QColor(0x07, 0x59, 0x85), QColor(0xE0, 0xF2, 0xFE)};
constexpr Mood weak{QColor(0x5B, 0x3A, 0x8A), QColor(0xF3, 0xED, 0xFF)};
constexpr Mood review{QColor(0x9A, 0x34, 0x12), QColor(0xFF, 0xED, 0xD5)};
constexpr Mood unlicensed{QColor(0x99, 0x1B, 0x1B), QColor(0xFE, 0xE2, 0xE2)};

ReportBadge badge(bool inVietnamese, const Mood &mood, const QString &english, const QString &vietnamese)
{
    return {inVietnamese ? vietnamese : english, mood.text, mood.fill};
}

} // namespace

ReportBadge signatureBadge(const QString &signatureStatus, bool vietnamese)
{
    if (signatureStatus == SignatureStatus::valid)
        return badge(vietnamese, good, QStringLiteral("VALID"), QStringLiteral("HỢP LỆ"));
    if (signatureStatus == SignatureStatus::invalid)
        return badge(vietnamese, bad, QStringLiteral("INVALID"), QStringLiteral("KHÔNG HỢP LỆ"));
    if (signatureStatus == SignatureStatus::unsignedCode)
        return badge(vietnamese, bad, QStringLiteral("NO SIGNATURE"), QStringLiteral("KHÔNG CÓ CHỮ KÝ"));
    if (signatureStatus == SignatureStatus::adHoc)
        return badge(vietnamese, internal, QStringLiteral("INTERNAL"), QStringLiteral("CHỮ KÝ NỘI BỘ"));
    return badge(vietnamese, neutral, QStringLiteral("NOT APPLICABLE"), QStringLiteral("KHÔNG ÁP DỤNG"));
}

ReportBadge licenseEvidenceBadge(AppLicenseEvidenceState state, bool vietnamese)
{
    switch (state) {
    case AppLicenseEvidenceState::verifiedReceipt:
        return badge(vietnamese, good, QStringLiteral("VERIFIED RECEIPT"), QStringLiteral("RECEIPT ĐÃ XÁC MINH"));
    case AppLicenseEvidenceState::receiptIntegrityVerified:
        return badge(vietnamese, good, QStringLiteral("RECEIPT INTEGRITY OK"), QStringLiteral("TOÀN VẸN RECEIPT OK"));
    case AppLicenseEvidenceState::acquisitionReceipt:
        return badge(vietnamese, informative, QStringLiteral("UNVERIFIED RECEIPT"),
                     QStringLiteral("RECEIPT CHƯA XÁC MINH"));
    case AppLicenseEvidenceState::licenseArtifact:
        return badge(vietnamese, good, QStringLiteral("LICENSE ARTIFACT"), QStringLiteral("ARTIFACT LICENSE"));
    case AppLicenseEvidenceState::accountBased:
        return badge(vietnamese, informative, QStringLiteral("ACCOUNT / SUBSCRIPTION"),
                     QStringLiteral("TÀI KHOẢN / THUÊ BAO"));
    case AppLicenseEvidenceState::freeOrOpenSource:
        return badge(vietnamese, informative, QStringLiteral("FREE / OSS"), QStringLiteral("MIỄN PHÍ / OSS"));
    case AppLicenseEvidenceState::installationEvidence:
        return badge(vietnamese, weak, QStringLiteral("INSTALL EVIDENCE ONLY"), QStringLiteral("CHỈ CÓ DẤU VẾT CÀI"));
    case AppLicenseEvidenceState::needsEntitlementReview:
        return badge(vietnamese, review, QStringLiteral("TECHNICAL REVIEW"), QStringLiteral("CẦN KIỂM TRA KỸ THUẬT"));
    case AppLicenseEvidenceState::accessRestricted:
        return badge(vietnamese, neutral, QStringLiteral("COULD NOT INSPECT"), QStringLiteral("KHÔNG THỂ KIỂM TRA"));
    case AppLicenseEvidenceState::noEvidence:
        return badge(vietnamese, neutral, QStringLiteral("NO LOCAL EVIDENCE"), QStringLiteral("CHƯA CÓ BẰNG CHỨNG"));
    case AppLicenseEvidenceState::explicitUnlicensed:
        return badge(vietnamese, unlicensed, QStringLiteral("NO LOCAL KEY RECORDED"),
                     QStringLiteral("KHÔNG GHI NHẬN KEY"));
    }
    Q_UNREACHABLE();
}

QColor detailTint(const QString &text)
{
    using Words = QList<QStringMatcher>;
    // "NOT INSTALLED" holds "INSTALLED" and is green: the status of a catalog item informs, it does not warn.
    static const Words good{QStringMatcher(u": OK"_s), QStringMatcher(u"ĐÃ CÀI"_s), QStringMatcher(u"INSTALLED"_s)};
    static const Words missing{QStringMatcher(u"WARN"_s), QStringMatcher(u"CHƯA CÀI"_s),
                               QStringMatcher(u"NOT INSTALLED"_s)};
    static const Words impossible{QStringMatcher(u"UNSUPPORTED"_s), QStringMatcher(u"KHÔNG HỖ TRỢ"_s)};
    const QString upper = text.toUpper();
    const auto hasOneOf = [&](const Words &words) {
        return std::any_of(words.cbegin(), words.cend(), [&](const auto &word) { return word.indexIn(upper) >= 0; });
    };
    if (hasOneOf(good))
        return ReportColors::green;
    if (hasOneOf(missing))
        return {0xF5, 0x9E, 0x0B};
    if (hasOneOf(impossible))
        return {0xDC, 0x26, 0x26};
    return ReportColors::blue;
}

} // namespace Tavelo::MacReportPDF
