#include "MacReportPDF.h"

#include "FileManager.h"
#include "Golden.h"
#include "ReadPdf.h"
#include "RefusingFiles.h"
#include "Row.h"
#include "SampleReports.h"
#include "TemporaryMac.h"

#include <QColor>
#include <QDir>
#include <QPolygonF>
#include <QProcess>
#include <QRegularExpression>
#include <QTransform>

#include <cerrno>
#include <thread>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

const QString cannotCreate = u"Không thể tạo tài liệu PDF."_s;
const QString target = u"/out/report.pdf"_s;

/// A Mac on which a report was made earlier.
struct Office {
    Office() { mac.write(target, "earlier"); }
    MacReportPDF::Surroundings surroundings() const { return {*files, u"/none"_s, u"/cache"_s, now}; }
    QByteArray pdf(const MacReportPDF::Contents &contents) const
    {
        return MacReportPDF::document(contents, surroundings()).value_or(QByteArray());
    }
    std::optional<QString> write(const MacReportPDF::Contents &contents = {}) const
    {
        return MacReportPDF::write(contents, target, surroundings());
    }
    QString qpdf(const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(u"qpdf"_s, QStringList(mac.hostPath(target)) + arguments);
        return process.waitForFinished() && process.exitCode() == 0 ? QString::fromLatin1(process.readAll())
                                                                    : QString();
    }
    void brand(const QByteArray &workspace) const { mac.write(u"/cache/technician-workspace.json"_s, workspace); }

    TemporaryMac mac;
    std::shared_ptr<const FileManager> files = mac.services().files;
    QDateTime now = sampleTime();
};

/// Files of which none can be written, for that reason.
struct FullFiles : FileManager {
    explicit FullFiles(int code) : reason(code) {}
    bool writeAtomically(const QString &, const QByteArray &, mode_t, FileError *error) const override
    {
        *error = {reason, u"the system's words"_s};
        return false;
    }
    int reason;
};

QList<QRegularExpressionMatch> matches(const QString &pattern, const QString &text)
{
    QList<QRegularExpressionMatch> found;
    for (const auto &match :
         QRegularExpression(pattern, QRegularExpression::DotMatchesEverythingOption).globalMatch(text))
        found << match;
    return found;
}

QString inPoints(const QRectF &dots)
{
    const QRectF box(dots.topLeft() / 20, dots.size() / 20);
    return u"%1 %2 %3 %4"_s.arg(box.x(), 6, 'f', 2)
        .arg(box.y(), 6, 'f', 2)
        .arg(box.width(), 6, 'f', 2)
        .arg(box.height(), 5, 'f', 2);
}

/// What a page draws, in its order: how, where (left, top, width, height), from where the outline goes, the opacities
/// and the colours.
QStringList drawn(const QString &content, const QHash<QString, QString> &opacities)
{
    QStringList lines;
    QString fill, stroke, opacity;
    QPolygonF outline;
    QTransform transform;
    for (const QString &line : content.split(u'\n')) {
        const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        const QString operation = words.value(words.size() - 1);
        const auto number = [&words](qsizetype place) {
            return words.value(place < 0 ? words.size() + place : place).toDouble();
        };
        const auto color = [&] {
            return QColor::fromRgbF(float(number(-4)), float(number(-3)), float(number(-2))).name();
        };
        if (operation == u"scn") {
            fill = color();
        } else if (operation == u"SCN") {
            stroke = color();
        } else if (operation == u"gs") {
            opacity = opacities.value(words.at(0));
        } else if (operation == u"Q") {
            transform.reset();
        } else if (operation == u"cm" || operation == u"Do") {
            transform = QTransform(number(0), number(1), number(2), number(3), number(4), number(5)) * transform;
            if (operation == u"Do")
                lines << u"image "_s + inPoints(transform.mapRect(QRectF(0, 0, 1, 1)));
        } else if (operation == u"Tj" && number(1) != 0) { // the first letter of a text
            lines << u"text from %1 | %2"_s.arg(inPoints({number(0), -number(1), 0, 0}).left(13), fill);
        } else if (operation == u"re") {
            outline << QPointF(number(0), number(1)) << QPointF(number(0) + number(2), number(1) + number(3));
        } else if (operation == u"m" || operation == u"l" || operation == u"c") {
            outline << QPointF(number(-3), number(-2));
        } else if (operation == u"f" || operation == u"f*" || operation == u"B*" || operation == u"S") {
            lines << u"%1 %2 from %3 | %4 %5 %6"_s.arg(operation, -5)
                         .arg(inPoints(outline.boundingRect()), inPoints({outline.first(), QSizeF()}).left(13), opacity,
                              fill, operation == u"B*" ? stroke : QString());
            outline.clear();
        }
    }
    return lines;
}

/// The pages of a document: their texts (top, edges to the left and right, size and weight), then what is drawn.
QString described(const Office &office, const MacReportPDF::Contents &contents)
{
    office.write(contents);
    const ReadPdf pdf(office.mac.contents(target));
    const QString source = office.qpdf({u"--qdf"_s, u"-"_s});
    QHash<QString, QString> opacities; // of lines and of what they enclose
    for (const auto &use : matches(u"(/GS\\w+) (\\d+) 0 R"_s, source)) {
        const QString state = u"\n%1 0 obj\n<<[^>]*/CA (\\S{1,5})[^>]*/ca (\\S{1,5})"_s.arg(use.captured(2));
        const auto parts = matches(state, source).value(0);
        opacities.insert(use.captured(1), parts.captured(1) + u' ' + parts.captured(2));
    }
    QStringList lines;
    const auto pages = matches(u"%% Contents for page.*?stream\n(.*?)endstream"_s, source);
    for (size_t page = 0; page < pdf.pages.size(); ++page) {
        const poppler::rectf size = pdf.pages.at(page)->page_rect(poppler::media_box);
        lines << u"== %1 x %2"_s.arg(size.right()).arg(size.bottom());
        QStringList texts;
        for (const ReadPdf::Run &run : pdf.runs(page))
            texts << u"%1 | %2 to %3 | %4 %5 | %6"_s.arg(qRound(run.box.top() * 4) / 4., 6, 'f', 2)
                         .arg(qRound(run.box.left() * 4) / 4., 6, 'f', 2)
                         .arg(qRound(run.box.right() * 4) / 4., 6, 'f', 2)
                         .arg(run.size, 0, 'f', 1)
                         .arg(run.font.section(u'-', -1), run.text);
        texts.sort();
        lines += texts + drawn(pages.value(qsizetype(page)).captured(1), opacities);
    }
    return lines.join(u'\n') + u'\n';
}

} // namespace

class MacReportPDFTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// In each language a report with every state of evidence, then one about nothing.
    void everything()
    {
        QList<InstalledMacApplication> applications = sampleApplications(11, 0) + sampleApplications(2, 3);
        applications[11].licenseEvidence->confidence = LicenseEvidenceConfidence::indicative;
        applications[12].licenseEvidence.reset();
        applications[12].name = u"%1 forged\n- x"_s;
        applications[12].signatureStatus = u"Valid"_s;
        const MacReportProfile profile{u" Lan\n"_s, u"IT %1"_s, u" \t"_s, u" Audit of <b>"_s, u" a\nb\n\n\nc "_s};
        const QString english = u"Hardware model: MacBook Pro\nModel identifier: Mac15,3\nChip: Apple M3\nMemory:\n"
                                "macOS version: 15.1.0\nSystem checks:\n- Homebrew: ok - WARN\n"
                                "- Slack [slack]: Installed\n- Slack: đã cài\n- Slack: Not installed\n"
                                "- Disk: WARN - unsupported\n- Slack: Chưa cài\n- rclone: Unsupported\n"
                                "- rclone: Không hỗ trợ\n- Disk: FAIL - OK : no\nAdditional installed software:\n"
                                "- Dropped: 1.0\nRecommendations:\n- Go on."_s;
        const QString vietnamese = u"Model identifier: Mac15,3\nKiểm tra hệ thống:\n- Homebrew: OK"_s;
        for (const auto &[name, text, bare] : {std::tuple(u"pdf-en.txt"_s, english, u"- No report"_s),
                                               std::tuple(u"pdf-vi.txt"_s, vietnamese, u"Khuyến nghị:\n- x"_s)}) {
            Office office;
            office.brand(sampleBranding(u" Cửa hàng "_s, {320, 120}));
            QString lines = described(office, {text, applications, profile});
            office.now = QDateTime({2026, 1, 2}, {0, 3});
            office.brand({});
            lines += described(office, {bare, {}, {}});
            const QByteArray differences = differencesFromGolden(name, lines.toUtf8());
            QVERIFY2(differences.isEmpty(), differences);
        }
    }

    void branding()
    {
        // The run of the name and the place of the logo.
        const auto branded = [](const QByteArray &workspace) {
            const Office office;
            office.brand(workspace);
            const QStringList images = described(office, {}).split(u'\n').filter(u"image"_s);
            return std::pair(ReadPdf(office.mac.contents(target)).run(0, {}, 21), images.value(1));
        };
        const auto endsAt = [](const ReadPdf::Run &run, const QString &name, double right) {
            return run.text == name && std::abs(run.box.right() - right) < 0.3;
        };
        const auto named = [&](const QString &name) {
            return branded(R"({"workspace":{"display_name":")" + name.toUtf8() + R"("}})").first;
        };
        const QString name = u"Cửa hàng"_s;
        const auto [besideWide, wide] = branded(sampleBranding(name, {24, 9}));
        const auto [besideHigh, high] = branded(sampleBranding(name, {40, 400}));
        QVERIFY(endsAt(besideWide, name, 523 - 7) && endsAt(besideHigh, name, 536.8 - 7));
        QCOMPARE(wide, u"image 523.00  18.38  30.00 11.25"_s);
        QCOMPARE(high, u"image 536.80  12.00   2.40 24.00"_s);
        for (int number = 0; number < 20; ++number) {
            const QString whole = u"%1 & sons"_s.arg(qint64(1) << 3 * number).repeated(1 + number % 3);
            QVERIFY2(endsAt(named(whole), whole, 553), qPrintable(whole));
        }
        const ReadPdf::Run cut = named(QString(120, u'M'));
        QVERIFY(cut.text.endsWith(u"M…") && cut.box.left() > 160 && std::abs(cut.box.right() - 553) < 8);
    }

    void searchableText()
    {
        const QStringList lines{u"Kiểm tra e\u0323\u0302 Tiếng Việt ĐƯỢC"_s,
                                u"日本語 ／ 中文 한국어 10:30 A-B i\u0305"_s, u"a\tb\u0007c fi ffi 1/2 ↳ • …"_s,
                                u"Homebrew \u202E<b>&amp;</b> ) Tj \\ %1"_s};
        const ReadPdf pdf(m_office.pdf({u"System checks:\n- "_s + lines.join(u"\n- "_s), {}, {}}));
        const QStringList expected{u"Kiểm tra ệ Tiếng Việt ĐƯỢC"_s, lines.at(1), u"a b c fi ffi 1/2 ↳ • …"_s,
                                   u"Homebrew <b>&amp;</b> ) Tj \\ %1"_s};
        double y = 498; // of the first line's card
        for (const QString &line : expected) {
            const poppler::rectf card(60, y, 490, 26);
            QCOMPARE(fromPoppler(pdf.pages.at(0)->text(card, poppler::page::raw_order_layout)).trimmed(), line);
            y += 29;
        }
    }

    void everySample()
    {
        for (const SampleReport &sample : sampleReports()) {
            const Office office;
            office.brand(sample.branding);
            QCOMPARE(office.write(sample.contents), std::nullopt);
            QVERIFY2(office.qpdf({u"--check"_s}).contains(u"No syntax or stream encoding errors"),
                     sample.name.toUtf8());
            const ReadPdf pdf(office.mac.contents(target));
            for (const poppler::font_info &font : pdf.document->fonts())
                QVERIFY2(font.is_embedded() && font.is_subset(), font.name().c_str());
            for (size_t page = 0; page < pdf.pages.size(); ++page)
                for (const ReadPdf::Run &run : pdf.runs(page)) {
                    QVERIFY2(QRectF(42, 12, 511.3, 818).contains(run.box), run.text.toUtf8());
                    const bool isEvidence = std::abs(run.size - 8.7) < 0.05;
                    QVERIFY2(!isEvidence || !run.text.endsWith(u'…'), run.text.toUtf8());
                }
        }
    }

    void properties()
    {
        const auto check = [this](const QString &text, const MacReportProfile &profile, const QStringList &expected) {
            QCOMPARE(m_office.write({text, {}, profile}), std::nullopt);
            const ReadPdf pdf(m_office.mac.contents(target));
            const QString language =
                matches(u"\"/Lang\": \"u:(..)"_s, m_office.qpdf({u"--json"_s})).value(0).captured(1);
            QCOMPARE(QStringList(
                         {fromPoppler(pdf.document->get_title()), fromPoppler(pdf.document->get_author()), language}),
                     expected);
        };
        check(u"x"_s, {u" Lan"_s, {}, {}, u" Kiểm kê "_s, {}}, {u"Kiểm kê"_s, u"Lan"_s, u"en"_s});
        check(u"Khuyến nghị:"_s, {}, {u"Tavelo Deskrig macOS Report"_s, u"Tavelo Deskrig"_s, u"vi"_s});
    }

    void chineseCharacters()
    {
        QString fonts;
        for (const QString &heading : {u"システムチェック"_s, u"系统检查"_s}) {
            const ReadPdf pdf(m_office.pdf({heading + u":\n- x"_s, {}, {{}, {}, {}, u"骨直"_s, {}}}));
            for (const ReadPdf::Run &run : pdf.runs(0))
                fonts += run.text == u"骨直" ? run.font : QString();
        }
        QVERIFY2(fonts.contains(QRegularExpression(u"CJKjp.*CJKsc"_s)), qPrintable(fonts));
    }

    void refusals()
    {
        Office office;
        for (const QString &path : {u"/missing/report.pdf"_s, u"/out"_s, target + u"/report.pdf"_s})
            QCOMPARE(MacReportPDF::write({}, path, office.surroundings()), cannotCreate);
        const QString said = u"the system's words"_s;
        for (const auto &[code, words] :
             {std::pair(EACCES, cannotCreate), std::pair(0, cannotCreate), std::pair(ENOSPC, said),
              std::pair(EFBIG, said), std::pair(EDQUOT, said), std::pair(EIO, said)}) {
            office.files = std::make_shared<FullFiles>(code);
            QCOMPARE(office.write(), words);
        }
        QCOMPARE(QDir(office.mac.folder()).entryList({u"out*"_s, u"missing"_s}), QStringList{u"out"_s});
        for (const auto &[code, words] : {std::pair(EPERM, said), std::pair(0, u"Input/output error"_s)}) {
            QCOMPARE(office.mac.contents(target).left(4), code ? "earl" : "%PDF");
            office.files = std::make_shared<RefusingFiles>(office.mac.folder(), target, code);
            QCOMPARE(office.write(), words);
        }
    }

    void onAnotherThread()
    {
        const MacReportPDF::Contents contents{{}, sampleApplications(11, 1), {}};
        const Office office;
        office.mac.furnish(u"chmod 666 .%1"_s.arg(target));
        QString onThread;
        std::thread([&] { onThread = described(office, contents); }).join();
        QCOMPARE(office.mac.mode(target), 0600);
        QCOMPARE(onThread, described(office, contents));
    }

private:
    const Office m_office;
};

QTEST_MAIN(MacReportPDFTest)

#include "MacReportPDFTest.moc"
