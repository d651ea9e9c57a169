#include "ReportBlocks.h"

#include "InventoryText.h"
#include "ReportColors.h"
#include "ReportEvidence.h"
#include "ReportSections.h"

#include <QLocale>

#include <algorithm>

namespace Tavelo::MacReportPDF
{

namespace
{

const QString nothing = QStringLiteral("—");

QString normalised(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() ? nothing : trimmed;
}

/// The labels of the document, of which there are two languages.
class Labels
{
public:
    explicit Labels(bool vietnamese) : m_vietnamese(vietnamese) {}
    QString operator()(const char16_t *english, const char16_t *vietnamese) const
    {
        return QString::fromUtf16(m_vietnamese ? vietnamese : english);
    }

private:
    bool m_vietnamese;
};

/// The date in its long form and the time in its short one, as the two locales write them together.
QString longDateAndTime(const QDateTime &now, bool vietnamese)
{
    if (vietnamese) {
        const QLocale locale(QLocale::Vietnamese, QLocale::Vietnam);
        return QStringLiteral("lúc %1 %2")
            .arg(locale.toString(now.time(), QStringLiteral("HH:mm")),
                 locale.toString(now.date(), QStringLiteral("d 'tháng' M, yyyy")));
    }
    const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return QStringLiteral("%1 at %2")
        .arg(locale.toString(now.date(), QStringLiteral("MMMM d, yyyy")),
             locale.toString(now.time(), QStringLiteral("h:mm AP")));
}

/// Nothing where the report tells none of the four facts.
std::optional<Blocks::Hardware> hardware(const QString &reportText, const Labels &label)
{
    const QString identifier = reportValue(QStringLiteral("Model identifier"), reportText);
    QString model = reportValue(QStringLiteral("Hardware model"), reportText);
    QString modelLabel = label(u"MAC MODEL", u"MODEL MÁY");
    if (model == nothing)
        model = identifier;
    if (identifier != nothing)
        modelLabel += QStringLiteral(" • ") + identifier;
    const Blocks::Hardware block{{
        {modelLabel, model, ReportColors::blue},
        {QStringLiteral("CHIP"), reportValue(QStringLiteral("Chip"), reportText), ReportColors::violet},
        {label(u"MEMORY", u"BỘ NHỚ"), reportValue(QStringLiteral("Memory"), reportText), ReportColors::teal},
        {QStringLiteral("macOS"), reportValue(QStringLiteral("macOS version"), reportText), ReportColors::orange},
    }};
    const bool known = std::any_of(block.cells.cbegin(), block.cells.cend(),
                                   [](const ReportCell &cell) { return cell.value != nothing; });
    return known ? std::optional(block) : std::nullopt;
}

Blocks::Metadata metadata(const MacReportProfile &profile, const QString &generated, const Labels &label)
{
    return {{
        {label(u"INSPECTOR", u"NGƯỜI KIỂM TRA"), normalised(profile.inspectorName), ReportColors::blue},
        {label(u"TEAM / UNIT", u"TEAM / ĐƠN VỊ"), normalised(profile.team), ReportColors::teal},
        {label(u"RECIPIENT", u"NƠI NHẬN / CẤP TRÊN"), normalised(profile.recipient), ReportColors::orange},
        {label(u"GENERATED", u"THỜI ĐIỂM XUẤT"), generated, ReportColors::violet},
    }};
}

enum class EvidenceGroup { strong, account, notVerified };

EvidenceGroup evidenceGroup(AppLicenseEvidenceState state)
{
    switch (state) {
    case AppLicenseEvidenceState::verifiedReceipt:
    case AppLicenseEvidenceState::receiptIntegrityVerified:
    case AppLicenseEvidenceState::acquisitionReceipt:
    case AppLicenseEvidenceState::licenseArtifact:
        return EvidenceGroup::strong;
    case AppLicenseEvidenceState::accountBased:
    case AppLicenseEvidenceState::freeOrOpenSource:
        return EvidenceGroup::account;
    case AppLicenseEvidenceState::installationEvidence:
    case AppLicenseEvidenceState::needsEntitlementReview:
    case AppLicenseEvidenceState::accessRestricted:
    case AppLicenseEvidenceState::noEvidence:
    case AppLicenseEvidenceState::explicitUnlicensed:
        break;
    }
    return EvidenceGroup::notVerified;
}

Blocks::Summary summary(const QList<InstalledMacApplication> &applications, const Labels &label)
{
    const auto count = [&](EvidenceGroup group) {
        return QString::number(
            std::count_if(applications.cbegin(), applications.cend(), [group](const InstalledMacApplication &each) {
                return evidenceGroup(reportedEvidence(each).state) == group;
            }));
    };
    return {{
        {label(u"INSTALLED APPS", u"ỨNG DỤNG"), QString::number(applications.size()), ReportColors::blue},
        {label(u"STRONG EVIDENCE", u"BẰNG CHỨNG MẠNH"), count(EvidenceGroup::strong), ReportColors::green},
        {label(u"NO KEY / ACCOUNT", u"KHÔNG KEY / TÀI KHOẢN"), count(EvidenceGroup::account), ReportColors::sky},
        {label(u"NOT VERIFIED", u"CHƯA XÁC MINH"), count(EvidenceGroup::notVerified), ReportColors::orange},
    }};
}

Blocks::ApplicationHeader applicationHeader(const Labels &label)
{
    return {{
        label(u"NO.", u"STT"),
        label(u"NAME", u"TÊN"),
        label(u"VERSION", u"PHIÊN BẢN"),
        label(u"SOURCE", u"NGUỒN"),
        label(u"VENDOR / PROJECT", u"ĐƠN VỊ / DỰ ÁN"),
        label(u"DIGITAL SIGNATURE - APP SIGNATURE", u"CHỮ KÝ SỐ - CHỮ KÝ APP"),
        label(u"LICENSE / KEY", u"BẢN QUYỀN / KEY"),
    }};
}

/// The evidence of one application in a line, and each of its signals in one of its own, all in one shade.
QList<Block> evidenceDetails(qsizetype number, const InstalledMacApplication &application, bool alternate)
{
    const AppLicenseEvidence evidence = reportedEvidence(application);
    QList<Block> rows;
    const auto add = [&](const QString &text) { rows << Blocks::DetailRow{withoutControls(text), alternate}; };
    add(QStringLiteral("%1. %2 • state=%3 • confidence=%4 • source=%5 • %6")
            .arg(QString::number(number), application.name, rawValue(evidence.state), confidenceWord(evidence),
                 evidence.source, evidence.detail));
    const QList<LicenseEvidenceSignal> signs = evidence.signals.value_or(QList<LicenseEvidenceSignal>());
    for (const LicenseEvidenceSignal &sign : signs)
        add(QStringLiteral("↳ [%1] %2 / %3: %4").arg(rawValue(sign.verification), sign.source, sign.kind, sign.detail));
    return rows;
}

bool isAlternate(qsizetype index)
{
    return index % 2 == 1;
}

} // namespace

QList<Block> makeBlocks(const QString &reportText, const QList<InstalledMacApplication> &applications,
                        const MacReportProfile &profile, bool vietnamese, const QDateTime &now)
{
    const Labels label(vietnamese);
    QList<Block> blocks;
    blocks << Blocks::Hero{
        normalised(profile.subject),
        label(u"Technical key/receipt evidence; origin and permitted scope require review. Default macOS apps are "
              u"excluded.",
              u"Bằng chứng kỹ thuật key/receipt; nguồn gốc và phạm vi sử dụng cần được thẩm tra. App mặc định macOS đã "
              u"được loại bỏ.")};
    if (const std::optional<Blocks::Hardware> block = hardware(reportText, label))
        blocks << *block;
    blocks << metadata(profile, longDateAndTime(now, vietnamese), label)
           << Blocks::Notes{label(u"MANUAL NOTES & CONCLUSION", u"GHI CHÚ NHẬP TAY & KẾT LUẬN"),
                            normalised(profile.notes)}
           << summary(applications, label)
           << Blocks::SectionTitle{label(u"Software & application packages", u"Phần mềm và gói ứng dụng"),
                                   QString::number(applications.size())}
           << applicationHeader(label);

    if (applications.isEmpty()) {
        blocks << Blocks::Paragraph{label(u"No additional software detected.", u"Chưa phát hiện phần mềm cài thêm.")};
    } else {
        for (qsizetype index = 0; index < applications.size(); ++index)
            blocks << Blocks::ApplicationRow{index + 1, applications.at(index), isAlternate(index), vietnamese};
        blocks << Blocks::Spacer{10}
               << Blocks::SectionTitle{
                      label(u"Technical license evidence details", u"Chi tiết bằng chứng bản quyền kỹ thuật"),
                      QString::number(applications.size())};
        for (qsizetype index = 0; index < applications.size(); ++index)
            blocks << evidenceDetails(index + 1, applications.at(index), isAlternate(index));
    }

    const QList<ReportSection> sections = parseSections(reportText, vietnamese);
    if (!sections.isEmpty())
        blocks << Blocks::Spacer{8};
    for (const ReportSection &section : sections) {
        blocks << Blocks::SectionTitle{section.title, QString::number(section.lines.size())};
        for (qsizetype index = 0; index < section.lines.size(); ++index)
            blocks << Blocks::DetailRow{section.lines.at(index), isAlternate(index)};
    }
    return blocks;
}

} // namespace Tavelo::MacReportPDF
