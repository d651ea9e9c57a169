#include "AppStrings.h"

#include "Endpoints.h"

#include <QHash>
#include <QList>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

const QHash<QString, Texts> &checkNames()
{
    static const QHash<QString, Texts> names{
        {u"macOS compatibility"_s,
         {
             .english = u"macOS compatibility",
             .vietnamese = u"Tương thích macOS",
             .korean = u"macOS 호환성",
             .japanese = u"macOSの互換性",
             .chinese = u"macOS 兼容性",
         }},
        {u"CPU architecture"_s,
         {
             .english = u"CPU architecture",
             .vietnamese = u"Kiến trúc CPU",
             .korean = u"CPU 아키텍처",
             .japanese = u"CPUアーキテクチャ",
             .chinese = u"CPU 架构",
         }},
        {u"Internet connection"_s,
         {
             .english = u"Internet connection",
             .vietnamese = u"Kết nối Internet",
             .korean = u"인터넷 연결",
             .japanese = u"インターネット接続",
             .chinese = u"互联网连接",
         }},
        {u"Dung lượng trống"_s,
         {
             .english = u"Free disk space",
             .vietnamese = u"Dung lượng trống",
             .korean = u"여유 공간",
             .japanese = u"空き容量",
             .chinese = u"可用空间",
         }},
        {u"user mode"_s,
         {
             .english = u"User mode",
             .vietnamese = u"Chế độ người dùng",
             .korean = u"사용자 모드",
             .japanese = u"ユーザモード",
             .chinese = u"用户模式",
         }},
    };
    return names;
}

/// A detail of one check. The Vietnamese text is how the backend's detail begins.
struct DetailRule {
    QString checkName;
    Texts texts;
    QString argument = {}; ///< Of the translations.
};

const QList<DetailRule> &detailRules()
{
    static const QList<DetailRule> rules{
        {u"Homebrew"_s,
         {
             .english = u"brew was not found. Install it from %1.",
             .vietnamese = u"Chưa tìm thấy brew.",
             .korean = u"brew를 찾을 수 없습니다. 설치 안내: %1",
             .japanese = u"brewが見つかりません。%1 からインストールしてください。",
             .chinese = u"未找到 brew。请从 %1 安装。",
         },
         Endpoints::homebrewSiteURL},
        {u"user mode"_s,
         {
             .english = u"Do not run the Homebrew GUI app as root.",
             .vietnamese = u"Không nên chạy",
             .korean = u"Homebrew GUI 앱을 root로 실행하지 마세요.",
             .japanese = u"Homebrew GUIアプリをrootで実行しないでください。",
             .chinese = u"请勿以 root 身份运行 Homebrew GUI 应用。",
         }},
        {u"Xcode Command Line Tools"_s,
         {
             .english = u"xcode-select is available.",
             .vietnamese = u"Đã có",
             .korean = u"xcode-select를 사용할 수 있습니다.",
             .japanese = u"xcode-selectを利用できます。",
             .chinese = u"xcode-select 可用。",
         }},
        {u"Xcode Command Line Tools"_s,
         {
             .english = u"Not required to open the app. It may be needed when Homebrew builds a formula from source.",
             .vietnamese = u"Không bắt buộc",
             .korean = u"앱을 여는 데는 필요하지 않습니다. Homebrew가 formula를 소스에서 빌드할 때 필요할 수 있습니다.",
             .japanese = u"アプリを開くだけなら不要です。Homebrewがformulaをソースからビルドするときに必要になることが"
                         u"あります。",
             .chinese = u"打开应用时并不需要，但 Homebrew 从源代码构建 formula 时可能会用到。",
         }},
        {u"Internet connection"_s,
         {
             .english = u"Could not resolve %1.",
             .vietnamese = u"Không phân giải được",
             .korean = u"%1의 DNS 조회에 실패했습니다.",
             .japanese = u"%1の名前を解決できません。",
             .chinese = u"无法解析 %1。",
         },
         Endpoints::dnsProbeHost},
        {u"Internet connection"_s,
         {
             .english = u"%1 resolves correctly.",
             .vietnamese = u"Có thể phân giải",
             .korean = u"%1의 DNS 조회가 정상입니다.",
             .japanese = u"%1の名前を正しく解決できます。",
             .chinese = u"%1 解析正常。",
         },
         Endpoints::dnsProbeHost},
    };
    return rules;
}

/// Parts of a detail that are replaced where they stand, in checks without rules of their own.
constexpr Texts phrases[] = {
    {
        .english = u"is too old. Minimum target",
        .vietnamese = u"quá cũ. Target tối thiểu",
        .korean = u"버전은 너무 오래되었습니다. 최소 요구 버전",
        .japanese = u"は古すぎます。最低要件",
        .chinese = u"版本过旧。最低要求",
    },
    {
        .english = u"may be missing some packages",
        .vietnamese = u"có thể thiếu package",
        .korean = u"패키지가 일부 없을 수 있습니다",
        .japanese = u"のパッケージが一部見つからない場合があります",
        .chinese = u"可能缺少部分软件包",
    },
    {
        .english = u"Installed.",
        .vietnamese = u"Đã cài.",
        .korean = u"설치됨.",
        .japanese = u"インストール済み。",
        .chinese = u"已安装。",
    },
    {
        .english = u"Not installed.",
        .vietnamese = u"Chưa cài.",
        .korean = u"설치되지 않음.",
        .japanese = u"未インストール。",
        .chinese = u"未安装。",
    },
};

constexpr Texts freeSpace{
    .english = u"%1 free on /.",
    .vietnamese = u"%1 trống trên /.",
    .korean = u"/ 볼륨에 %1의 여유 공간이 있습니다.",
    .japanese = u"/ の空き容量は%1です。",
    .chinese = u"/ 上有 %1 可用空间。",
};

constexpr Texts userName{
    .english = u"User: %1",
    .vietnamese = u"User: %1",
    .korean = u"사용자: %1",
    .japanese = u"ユーザ: %1",
    .chinese = u"用户：%1",
};

constexpr QStringView freeSpaceEnd = u" trống trên /.";
constexpr QStringView userNameStart = u"User: ";

} // namespace

QString AppStrings::systemChecksDescription() const
{
    return in({
        .english = u"Checks macOS, Homebrew, DNS, free disk space, and the main office apps.",
        .vietnamese = u"Kiểm tra macOS, Homebrew, DNS, dung lượng trống và các app văn phòng chính.",
        .korean = u"macOS, Homebrew, DNS, 여유 공간, 주요 오피스 앱을 확인합니다.",
        .japanese = u"macOS、Homebrew、DNS、空き容量、主要なオフィスアプリを確認します。",
        .chinese = u"检查 macOS、Homebrew、DNS、可用空间和主要办公应用。",
    });
}

QString AppStrings::systemCheckName(const QString &name) const
{
    const auto found = checkNames().constFind(name);
    return found == checkNames().cend() ? name : in(*found);
}

QString AppStrings::systemCheckDetail(const QString &name, const QString &detail) const
{
    if (m_language == AppLanguage::vietnamese)
        return detail;
    if (name == u"Dung lượng trống" && detail.endsWith(freeSpaceEnd))
        return in(freeSpace).arg(detail.chopped(freeSpaceEnd.size()));
    if (name == u"user mode" && detail.startsWith(userNameStart))
        return in(userName).arg(detail.mid(userNameStart.size()));

    bool hasRules = false;
    for (const DetailRule &rule : detailRules()) {
        if (rule.checkName != name)
            continue;
        hasRules = true;
        if (detail.startsWith(rule.texts.vietnamese))
            return rule.argument.isEmpty() ? in(rule.texts) : in(rule.texts).arg(rule.argument);
    }
    if (hasRules)
        return detail;

    QString translated = detail;
    for (const Texts &phrase : phrases)
        translated.replace(phrase.vietnamese.toString(), in(phrase));
    return translated;
}

} // namespace Tavelo
