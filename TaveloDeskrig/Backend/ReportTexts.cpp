#include "ReportTexts.h"

#include "Texts.h"

#include <QHash>

namespace Tavelo
{

namespace
{

ReportTexts textsIn(AppLanguage language)
{
    const auto in = [language](const Texts &texts) { return texts.in(language); };
    return {
        .timeLabel = in({
            .english = u"Time",
            .vietnamese = u"Thời gian",
            .korean = u"시간",
            .japanese = u"時刻",
            .chinese = u"时间",
        }),
        .systemChecksHeading = in({
            .english = u"System checks:",
            .vietnamese = u"Kiểm tra hệ thống:",
            .korean = u"시스템 검사:",
            .japanese = u"システムチェック:",
            .chinese = u"系统检查:",
        }),
        .additionalSoftwareHeading = in({
            .english = u"Additional installed software:",
            .vietnamese = u"Phần mềm cài thêm:",
            .korean = u"추가 설치 소프트웨어:",
            .japanese = u"追加インストール済みソフトウェア:",
            .chinese = u"额外安装的软件:",
        }),
        .noneLine = in({
            .english = u"- None detected.",
            .vietnamese = u"- Không phát hiện.",
            .korean = u"- 감지되지 않음.",
            .japanese = u"- 検出なし。",
            .chinese = u"- 未检测到。",
        }),
        .catalogHeading = in({
            .english = u"Tavelo catalog status:",
            .vietnamese = u"Trạng thái ứng dụng Tavelo:",
            .korean = u"Tavelo 카탈로그 상태:",
            .japanese = u"Taveloカタログの状態:",
            .chinese = u"Tavelo 目录状态:",
        }),
        .installed = in({
            .english = u"Installed",
            .vietnamese = u"Đã cài",
            .korean = u"설치됨",
            .japanese = u"インストール済み",
            .chinese = u"已安装",
        }),
        .unsupported = in({
            .english = u"Unsupported",
            .vietnamese = u"Không hỗ trợ",
            .korean = u"지원되지 않음",
            .japanese = u"未対応",
            .chinese = u"不支持",
        }),
        .notInstalled = in({
            .english = u"Not installed",
            .vietnamese = u"Chưa cài",
            .korean = u"설치되지 않음",
            .japanese = u"未インストール",
            .chinese = u"未安装",
        }),
        .recommendationsHeading = in({
            .english = u"Recommendations:",
            .vietnamese = u"Khuyến nghị:",
            .korean = u"권장 사항:",
            .japanese = u"推奨事項:",
            .chinese = u"建议:",
        }),
        .recommendation1 = in({
            .english = u"- Install Office Basic first on a new office Mac.",
            .vietnamese = u"- Cài nhóm Office Basic trước cho máy văn phòng mới.",
            .korean = u"- 새 업무용 Mac에는 Office Basic을 먼저 설치하세요.",
            .japanese = u"- 新しい業務用MacではOffice Basicを先にインストールしてください。",
            .chinese = u"- 新办公 Mac 请先安装 Office Basic。",
        }),
        .recommendation2 = in({
            .english = u"- Install ONLYOFFICE before assigning Office file defaults.",
            .vietnamese = u"- Cài ONLYOFFICE trước khi đặt mặc định file Office.",
            .korean = u"- Office 파일 기본값을 지정하기 전에 ONLYOFFICE를 설치하세요.",
            .japanese = u"- Officeファイルの既定設定前にONLYOFFICEをインストールしてください。",
            .chinese = u"- 设置 Office 文件默认应用前请安装 ONLYOFFICE。",
        }),
        .limitsHeading = in({
            .english = u"Key detection limits:",
            .vietnamese = u"Giới hạn phát hiện key:",
            .korean = u"키 감지 한계:",
            .japanese = u"キー検出の制限:",
            .chinese = u"密钥检测限制:",
        }),
        .limits1 = in({
            .english = u"- Default macOS operating-system applications and system receipts are excluded.",
            .vietnamese = u"- Ứng dụng mặc định của hệ điều hành macOS và system receipt được loại khỏi báo cáo.",
            .korean = u"- macOS 기본 운영 체제 앱과 시스템 영수증은 제외됩니다.",
            .japanese = u"- macOS標準のOSアプリとシステムレシートは除外されます。",
            .chinese = u"- 已排除 macOS 默认系统应用和系统收据。",
        }),
        .limits2 = in({
            .english = u"- A valid digital signature only verifies the app file or publisher; it does not mean a key "
                       u"or activation receipt was detected.",
            .vietnamese = u"- Chữ ký số hợp lệ chỉ xác minh file app hoặc nhà phát hành; không có nghĩa là đã phát "
                          u"hiện key hoặc receipt kích hoạt.",
            .korean = u"- 유효한 앱 서명은 키 또는 활성화 영수증이 감지되었다는 의미가 아닙니다.",
            .japanese = u"- アプリ署名が有効でも、キーやアクティベーションレシートが検出されたとは限りません。",
            .chinese = u"- 应用签名有效并不表示已检测到密钥或激活收据。",
        }),
        .limits3 = in({
            .english = u"- This report separates verified receipts, structured vendor artifacts, account-based "
                       u"software, installation provenance, access restrictions, and no local evidence. Origin, "
                       u"ownership, current subscription status, and permitted scope require human review.",
            .vietnamese = u"- Báo cáo tách riêng receipt đã xác minh, artifact hãng có cấu trúc, phần mềm dùng tài "
                          u"khoản, nguồn cài đặt, vị trí không đủ quyền và trường hợp chưa thấy bằng chứng local. "
                          u"Nguồn gốc, chủ thể sở hữu, trạng thái thuê bao hiện tại và phạm vi sử dụng vẫn cần người "
                          u"phụ trách thẩm tra.",
            .korean = u"- 이 보고서는 키 또는 영수증 감지, 미감지, 키 불필요 상태의 로컬 기술 증거만 표시합니다. "
                      u"출처, 소유권 및 허용된 사용 범위는 담당자가 확인해야 합니다.",
            .japanese = u"- このレポートは、キー／レシートの検出、未検出、キー不要というローカルの技術的証拠のみを示し"
                        u"ます。出所、所有者、許可された利用範囲は担当者による確認が必要です。",
            .chinese = u"- 本报告仅显示本地技术证据：检测到密钥/收据、未检测到或无需密钥。来源、所有权及允许的使用范围"
                       u"需由负责人核实。",
        }),
    };
}

} // namespace

const ReportTexts &reportTexts(AppLanguage language)
{
    static const QHash<AppLanguage, ReportTexts> all = [] {
        QHash<AppLanguage, ReportTexts> texts;
        for (const AppLanguage each : AppLanguages::supported())
            texts.insert(each, textsIn(each));
        return texts;
    }();
    return *all.constFind(language);
}

} // namespace Tavelo
