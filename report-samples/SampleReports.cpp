#include "SampleReports.h"

#include "Catalog.h"
#include "TextReport.h"

#include <QBuffer>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <array>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

using State = AppLicenseEvidenceState;

struct Kind {
    QString name;
    QString version;
    QStringView source;
    QStringView signature;
    QString developer;
    State state;
    QString evidenceSource;
    QString detail;
};

const QList<Kind> &kinds()
{
    static const QList<Kind> list = {
        {u"Northwind Ledger"_s, u"12.4.1"_s, InventorySource::macAppStore, SignatureStatus::valid,
         u"Northwind Traders"_s, State::verifiedReceipt, u"app-store-receipt"_s,
         u"The store receipt carries an intact signature and names this application."_s},
        {u"Fabrikam Studio"_s, u"2026.1"_s, InventorySource::applications, SignatureStatus::valid, u"Fabrikam, Inc."_s,
         State::accountBased, u"vendor-account"_s,
         u"The vendor licenses this application through an online account."_s},
        {u"Sổ tay Kế toán"_s, u"3.0"_s, InventorySource::applications, SignatureStatus::adHoc, u"Công ty Ánh Dương"_s,
         State::installationEvidence, u"installer-receipt"_s,
         u"An installer package was recorded; it shows how the application came here and nothing more."_s},
        {u"wget"_s, u"1.24.5"_s, InventorySource::homebrewFormula, SignatureStatus::notApplicable, u"GNU"_s,
         State::freeOrOpenSource, u"homebrew-license"_s, u"Homebrew states the license GPL-3.0-or-later."_s},
        {u"Contoso Draw"_s, u"7.2.19"_s, InventorySource::applications, SignatureStatus::valid, u"Contoso AG"_s,
         State::licenseArtifact, u"vendor-license-artifact"_s,
         u"A license file of the vendor with the expected structure lies in the application's support folder."_s},
        {u"Tailspin Remote"_s, u"unknown"_s, InventorySource::userApplications, SignatureStatus::unsignedCode, u"—"_s,
         State::noEvidence, u"none"_s, u"No local license evidence was found."_s},
        {u"Litware Backup"_s, u"5.5 (5521)"_s, InventorySource::applications, SignatureStatus::invalid, u"Litware"_s,
         State::needsEntitlementReview, u"app-preferences"_s,
         u"Preference field names point at a commercial license; their values were not read."_s},
        {u"Proseware Notes"_s, u"1.0.3"_s, InventorySource::macAppStore, SignatureStatus::valid, u"Proseware"_s,
         State::acquisitionReceipt, u"app-store-receipt"_s,
         u"A store receipt lies in the bundle; it was not verified."_s},
        {u"Adatum Fonts"_s, u"2.2"_s, InventorySource::installerReceipt, SignatureStatus::receiptOnly, u"Adatum"_s,
         State::accessRestricted, u"license-store"_s, u"A location that may hold a license could not be read."_s},
        {u"Trey Research Lab"_s, u"9.1"_s, InventorySource::macAppStore, SignatureStatus::valid, u"Trey Research"_s,
         State::receiptIntegrityVerified, u"app-store-receipt"_s,
         u"The receipt's signature is intact; its chain cannot be fully trusted on this Mac."_s},
        {u"Wingtip Paint"_s, u"0.9"_s, InventorySource::applications, SignatureStatus::valid, u"Wingtip Toys"_s,
         State::explicitUnlicensed, u"vendor-license-artifact"_s,
         u"The application itself records that it has no license."_s},
    };
    return list;
}

const std::array<LicenseEvidenceSignal, 3> &signs()
{
    static const std::array<LicenseEvidenceSignal, 3> list{{
        {u"license-metadata"_s, u"app-preferences"_s, LicenseEvidenceVerification::detected,
         u"The preferences of the application hold two fields whose names speak of a license."_s},
        {u"install-provenance"_s, u"homebrew-cask"_s, LicenseEvidenceVerification::structurallyValid,
         u"The application is installed by a cask that names the vendor's own download."_s},
        {u"installer-receipt"_s, u"pkgutil"_s, LicenseEvidenceVerification::notVerified,
         u"One installer package whose identifier shares a distinctive word with the application is recorded on this "
         u"Mac; whether it installed this copy was not verified."_s},
    }};
    return list;
}

InstalledMacApplication application(const Kind &kind, qsizetype number, int signalsEach)
{
    AppLicenseEvidence evidence{.state = kind.state,
                                .source = kind.evidenceSource,
                                .detail = kind.detail,
                                .confidence = {},
                                .signals = QList<LicenseEvidenceSignal>()};
    for (int index = 0; index < signalsEach; ++index)
        evidence.signals->append(signs().at(static_cast<size_t>(index) % signs().size()));
    return {.name = QStringLiteral("%1 %2").arg(kind.name).arg(number),
            .version = kind.version,
            .identifier = QStringLiteral("com.example.app%1").arg(number),
            .source = kind.source.toString(),
            .signatureStatus = kind.signature.toString(),
            .teamIdentifier = u"A1B2C3D4E5"_s,
            .signingIdentifier = QStringLiteral("com.example.app%1").arg(number),
            .developerName = kind.developer,
            .licenseEvidence = evidence};
}

MacReportProfile profile(AppLanguage language)
{
    if (language == AppLanguage::vietnamese)
        return {.inspectorName = u"Nguyễn Thị Hồng Nhung"_s,
                .team = u"Tổ Hạ tầng Công nghệ"_s,
                .recipient = u"Phòng Kế hoạch – Tài chính"_s,
                .subject = u"Kiểm kê phần mềm máy văn phòng"_s,
                .notes = u"Máy sạch, đủ bộ chuẩn. Hai ứng dụng cần đối chiếu hóa đơn trước ngày 30."_s};
    return {.inspectorName = u"Jordan Blake"_s,
            .team = u"IT Infrastructure"_s,
            .recipient = u"Head of Operations"_s,
            .subject = u"Software audit of an office Mac"_s,
            .notes = u"The Mac is in order. Two applications are to be checked against their invoices."_s};
}

QList<InstalledMacApplication> longNames()
{
    QList<InstalledMacApplication> list = sampleApplications(6, 1);
    for (InstalledMacApplication &each : list) {
        each.name += u" Enterprise Collaboration Suite for Distributed Teams, Extended Support Edition"_s;
        each.version = u"2026.11.22-nightly+build.20261122.1405.g1a2b3c4d5e6f"_s;
        each.developerName = u"Công ty Trách nhiệm Hữu hạn Một thành viên Giải pháp Phần mềm Văn phòng Đại Việt"_s;
        each.licenseEvidence->source = QString(40, u'W') + each.licenseEvidence->source;
        each.licenseEvidence->detail += u' ' + QString(220, u'x'); // a word that no line holds
    }
    return list;
}

QList<InstalledMacApplication> hostileApplications()
{
    QList<InstalledMacApplication> list = sampleApplications(5, 1);
    list[0].name = u"Line\nbreak\r\nand\ttab\u2028separator"_s;
    list[1].name = u"Invoice \u202Efdp.exe"_s;                     // would turn the direction of what follows
    list[2].name = QString(QChar(0xD800)) + u"half a character"_s; // and no other half
    list[3].name = u"e\u0323\u0302 中文 日本語 한국어 العربية ไทย \U0001F600"_s;
    list[4].name = QString(5000, u'A');
    list[4].licenseEvidence->detail = u"<b>&amp;</b> %1 %2 ) Tj ET << /JS (app.alert) >> ↳ [verified] "_s;
    return list;
}

} // namespace

QDateTime sampleTime()
{
    return QDateTime(QDate(2026, 11, 22), QTime(17, 5, 9));
}

QList<InstalledMacApplication> sampleApplications(qsizetype count, int signalsEach)
{
    QList<InstalledMacApplication> list;
    for (qsizetype index = 0; index < count; ++index)
        list << application(kinds().at(index % kinds().size()), index + 1, signalsEach);
    return list;
}

QString sampleReportText(AppLanguage language, const QList<InstalledMacApplication> &applications)
{
    using Level = SystemCheck::Level;
    TextReportFacts facts;
    facts.time = sampleTime();
    facts.hostname = u"Văn phòng 03"_s;
    facts.hardware = {u"MacBook Pro"_s, u"Mac15,3"_s, u"Apple M3"_s, u"16 GB"_s};
    facts.macOSVersion = u"15.1.0"_s;
    facts.architecture = u"arm64"_s;
    facts.brewPath = u"/opt/homebrew/bin/brew"_s;
    facts.logFile = u"/Users/technician/Library/Logs/tavelo-deskrig.log"_s;
    const auto check = [](const QString &name, Level level, const QString &detail) {
        return SystemCheck{.name = name, .level = level, .detail = detail};
    };
    facts.checks = {check(u"macOS compatibility"_s, Level::ok, u"macOS 15.1.0."_s),
                    check(u"Internet connection"_s, Level::warn, u"Không phân giải được formulae.brew.sh."_s),
                    check(u"Dung lượng trống"_s, Level::fail, u"2GB trống trên /."_s)};
    facts.applications = applications;
    const std::array statuses{InstallStatus::installed, InstallStatus::missing, InstallStatus::blocked};
    const QList<AppItem> items = Catalog::uniqueInstallItems(Catalog::items());
    for (qsizetype index = 0; index < items.size(); ++index)
        facts.catalog.append({items.at(index), statuses.at(static_cast<size_t>(index) % statuses.size())});
    return textReport(facts, language);
}

QByteArray sampleBranding(const QString &name, const QSize &logoSize)
{
    QImage logo(logoSize, QImage::Format_RGB32);
    logo.fill(QColor(0x0F, 0x9F, 0x8F));
    QPainter painter(&logo);
    painter.setBrush(Qt::white);
    painter.drawEllipse(logo.rect().adjusted(8, 8, -8, -8));
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    logo.save(&buffer, "png");
    const QString url = u"data:image/png;base64,"_s + QString::fromLatin1(png.toBase64());
    const QJsonObject workspace{{u"display_name"_s, name}, {u"logo_data_url"_s, url}};
    return QJsonDocument(QJsonObject{{u"workspace"_s, workspace}}).toJson();
}

QList<SampleReport> sampleReports()
{
    QList<SampleReport> reports;
    for (const AppLanguage language : {AppLanguage::vietnamese, AppLanguage::english}) {
        const auto add = [&](const QString &name, const QList<InstalledMacApplication> &applications,
                             const MacReportProfile &given, const QByteArray &branding = {}) {
            reports << SampleReport{rawValue(language) + u'-' + name,
                                    {sampleReportText(language, applications), applications, given},
                                    branding};
        };
        const MacReportProfile usual = profile(language);
        add(u"empty"_s, {}, {});
        reports << SampleReport{
            rawValue(language) + u"-one-page"_s, {QString(), sampleApplications(6, 0), usual}, QByteArray()};
        add(u"300-applications"_s, sampleApplications(300, 3), usual);
        add(u"branded"_s, sampleApplications(11, 2), usual,
            sampleBranding(u"Cửa hàng Sửa Mac Bến Thành"_s, {320, 120}));
        add(u"long-names"_s, longNames(), usual, sampleBranding(QString(120, u'M'), {40, 400}));
        MacReportProfile talkative = usual;
        talkative.subject += u" – toàn bộ các chi nhánh, kho, cửa hàng và văn phòng đại diện trong cả nước"_s;
        talkative.notes =
            QStringList(12, u"Đã đối chiếu từng ứng dụng với hóa đơn và hợp đồng; các mục còn thiếu "
                            u"được ghi ở cuối trang. Kết luận: đạt yêu cầu, kiểm tra lại sau sáu tháng."_s)
                .join(u"\n"_s);
        add(u"long-notes"_s, sampleApplications(4, 1), talkative);
        add(u"hostile"_s, hostileApplications(), usual);
    }
    for (const AppLanguage language : {AppLanguage::korean, AppLanguage::japanese, AppLanguage::chinese}) {
        const QList<InstalledMacApplication> applications = sampleApplications(3, 1);
        reports << SampleReport{rawValue(language) + u"-report"_s,
                                {sampleReportText(language, applications), applications, profile(language)},
                                {}};
    }
    return reports;
}

} // namespace Tavelo
