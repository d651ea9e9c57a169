#include "AppStrings.h"

#include "InstalledMacApplication.h"

namespace Tavelo
{

QString AppStrings::auditSubtitle() const
{
    return in({
        u"Software added to this Mac, with its signature and license evidence.",
        u"Phần mềm cài thêm trên máy Mac này, kèm bằng chứng chữ ký và bản quyền.",
        u"이 Mac에 추가로 설치된 소프트웨어와 그 서명 및 라이선스 증거입니다.",
        u"このMacに追加インストールされたソフトウェアと、その署名およびライセンスの証拠です。",
        u"这台 Mac 上额外安装的软件及其签名和许可证证据。",
    });
}

QString AppStrings::auditPreparing() const
{
    return in({u"Preparing macOS inventory", u"Đang chuẩn bị kiểm kê macOS", u"macOS 인벤토리 준비 중",
               u"macOSインベントリを準備中", u"正在准备 macOS 盘点"});
}

QString AppStrings::auditScanProgress(qsizetype completed, qsizetype total, int percent) const
{
    return in({u"Scanned %1/%2 apps • %3%", u"Đã quét %1/%2 app • %3%", u"앱 %1/%2개 스캔됨 • %3%",
               u"アプリ%1/%2個をスキャン済み • %3%", u"已扫描 %1/%2 个应用 • %3%"})
        .arg(QString::number(completed), QString::number(total), QString::number(percent));
}

QString AppStrings::auditUpdatingCatalog(qsizetype itemCount) const
{
    return in({u"Updating %1 Tavelo catalog items", u"Đang cập nhật %1 mục trong catalog Tavelo",
               u"Tavelo 카탈로그 항목 %1개 업데이트 중", u"Taveloカタログの%1項目を更新中",
               u"正在更新 %1 个 Tavelo 目录项"})
        .arg(QString::number(itemCount));
}

QString AppStrings::auditComplete(qsizetype itemCount) const
{
    return in({u"Inventory complete: %1 items detected", u"Đã kiểm kê: phát hiện %1 mục",
               u"인벤토리 완료: %1개 항목 감지됨", u"インベントリ完了: %1件を検出", u"盘点完成：检测到 %1 项"})
        .arg(QString::number(itemCount));
}

QString AppStrings::auditSummary(qsizetype /*total*/, qsizetype keyPresent, qsizetype keyNotRequired,
                                 qsizetype keyNotDetected) const
{
    return in({
                  u"%1 key/receipt • %2 free/no key • %3 key not detected",
                  u"%1 có key/receipt • %2 miễn phí/không key • %3 không phát hiện key",
                  u"키/영수증 있음 %1개 • 무료/키 불필요 %2개 • 키 미감지 %3개",
                  u"キー/レシートあり%1件 • 無料/キー不要%2件 • キー未検出%3件",
                  u"%1 项有密钥/收据 • %2 项免费/无需密钥 • %3 项未检测到密钥",
              })
        .arg(QString::number(keyPresent), QString::number(keyNotRequired), QString::number(keyNotDetected));
}

QString AppStrings::auditNoDataTitle() const
{
    return in({u"No inventory yet", u"Chưa có dữ liệu kiểm kê", u"아직 인벤토리가 없습니다",
               u"インベントリはまだありません", u"暂无盘点数据"});
}

QString AppStrings::auditNoDataDetail() const
{
    return in({
        u"Scan this Mac to list its additionally installed software, with signature and license evidence.",
        u"Quét máy Mac này để liệt kê phần mềm cài thêm, kèm bằng chứng chữ ký và bản quyền.",
        u"이 Mac을 스캔하면 추가로 설치된 소프트웨어와 서명 및 라이선스 증거가 표시됩니다.",
        u"このMacをスキャンすると、追加インストールされたソフトウェアと、その署名およびライセンスの証拠が一覧表示されます。",
        u"扫描这台 Mac，以列出额外安装的软件及其签名和许可证证据。",
    });
}

QString AppStrings::auditSidebarSummaryTitle() const
{
    return in({u"System inventoried", u"Đã kiểm kê máy", u"시스템 인벤토리 완료", u"システムのインベントリ完了",
               u"系统已盘点"});
}

QString AppStrings::auditSidebarSummaryDetail(qsizetype recordCount) const
{
    return in({
                  u"%1 software records collected from this Mac.",
                  u"Đã thu thập %1 bản ghi phần mềm trên máy Mac này.",
                  u"이 Mac에서 소프트웨어 기록 %1개를 수집했습니다.",
                  u"このMacから%1件のソフトウェア情報を収集しました。",
                  u"已从这台 Mac 收集 %1 条软件记录。",
              })
        .arg(QString::number(recordCount));
}

QString AppStrings::auditDeveloperLabel() const
{
    return in(
        {u"Vendor / project", u"Đơn vị / dự án", u"개발사 / 프로젝트", u"開発元 / プロジェクト", u"开发者 / 项目"});
}

QString AppStrings::auditSignatureLabel() const
{
    return in({u"Digital signature", u"Chữ ký số", u"디지털 서명", u"デジタル署名", u"数字签名"});
}

QString AppStrings::auditSignatureStatusLabel(const QString &status) const
{
    if (status == SignatureStatus::valid)
        return in({u"Valid", u"Hợp lệ", u"유효함", u"有効", u"有效"});
    if (status == SignatureStatus::invalid)
        return in({u"Invalid", u"Không hợp lệ", u"유효하지 않음", u"無効", u"无效"});
    if (status == SignatureStatus::unsignedCode)
        return in({u"No signature", u"Không có chữ ký", u"서명 없음", u"署名なし", u"无签名"});
    if (status == SignatureStatus::adHoc)
        return in({u"Internal", u"Chữ ký nội bộ", u"내부 서명", u"内部署名", u"内部签名"});
    return in({u"Detected", u"Đã phát hiện", u"감지됨", u"検出済み", u"已检测到"});
}

QString AppStrings::auditLicenseLabel() const
{
    return in({u"License / key", u"Bản quyền / key", u"라이선스 / 키", u"ライセンス / キー", u"许可证 / 密钥"});
}

QString AppStrings::auditLicenseEvidenceLabel(AppLicenseEvidenceState state) const
{
    switch (state) {
    case AppLicenseEvidenceState::verifiedReceipt:
        return in(
            {u"Verified receipt", u"Receipt đã xác minh", u"검증된 영수증", u"検証済みレシート", u"已验证的收据"});
    case AppLicenseEvidenceState::receiptIntegrityVerified:
        return in({u"Receipt integrity OK", u"Toàn vẹn receipt OK", u"영수증 무결성 확인됨", u"レシートの完全性OK",
                   u"收据完整性正常"});
    case AppLicenseEvidenceState::acquisitionReceipt:
        return in({u"Unverified receipt", u"Receipt chưa xác minh", u"검증되지 않은 영수증", u"未検証のレシート",
                   u"未验证的收据"});
    case AppLicenseEvidenceState::licenseArtifact:
        return in({u"License artifact", u"Artifact license", u"라이선스 데이터", u"ライセンスデータ", u"许可证数据"});
    case AppLicenseEvidenceState::accountBased:
        return in({u"Account / subscription", u"Tài khoản / thuê bao", u"계정 / 구독",
                   u"アカウント / サブスクリプション", u"账户 / 订阅"});
    case AppLicenseEvidenceState::freeOrOpenSource:
        return in({u"Free / OSS", u"Miễn phí / OSS", u"무료 / OSS", u"無料 / OSS", u"免费 / 开源"});
    case AppLicenseEvidenceState::installationEvidence:
        return in({u"Install evidence only", u"Chỉ có dấu vết cài", u"설치 흔적만 있음", u"インストールの痕跡のみ",
                   u"仅有安装痕迹"});
    case AppLicenseEvidenceState::needsEntitlementReview:
        return in(
            {u"Technical review", u"Cần kiểm tra kỹ thuật", u"기술 검토 필요", u"技術的な確認が必要", u"需技术核查"});
    case AppLicenseEvidenceState::accessRestricted:
        return in({u"Could not inspect", u"Không thể kiểm tra", u"검사할 수 없음", u"検査不可", u"无法检查"});
    case AppLicenseEvidenceState::noEvidence:
        return in(
            {u"No local evidence", u"Chưa có bằng chứng", u"로컬 증거 없음", u"ローカルの証拠なし", u"无本地证据"});
    case AppLicenseEvidenceState::explicitUnlicensed:
        return in({u"No local key recorded", u"Không ghi nhận key", u"로컬 키 기록 없음", u"ローカルにキーの記録なし",
                   u"无本地密钥记录"});
    }
    Q_UNREACHABLE();
}

QString AppStrings::auditLicenseSourceLabel() const
{
    return in({u"Evidence source", u"Nguồn bằng chứng", u"증거 출처", u"証拠の取得元", u"证据来源"});
}

QString AppStrings::auditLicenseDetailLabel() const
{
    return in({u"Evidence details", u"Chi tiết bằng chứng", u"증거 세부사항", u"証拠の詳細", u"证据详情"});
}

QString AppStrings::auditLicenseConfidenceLabel() const
{
    return in({u"Confidence", u"Độ tin cậy", u"신뢰도", u"信頼度", u"可信度"});
}

QString AppStrings::auditLicenseConfidenceValue(LicenseEvidenceConfidence confidence) const
{
    switch (confidence) {
    case LicenseEvidenceConfidence::verified:
        return in({u"Verified", u"Đã xác minh", u"검증됨", u"検証済み", u"已验证"});
    case LicenseEvidenceConfidence::strong:
        return in({u"Strong", u"Khá cao", u"높음", u"高い", u"较高"});
    case LicenseEvidenceConfidence::indicative:
        return in({u"Indicative", u"Có dấu hiệu", u"추정", u"推定", u"推测"});
    case LicenseEvidenceConfidence::informational:
        return in({u"Informational", u"Tham khảo", u"참고용", u"参考情報", u"仅供参考"});
    case LicenseEvidenceConfidence::none:
        return in({u"None", u"Không có", u"없음", u"なし", u"无"});
    }
    Q_UNREACHABLE();
}

QString AppStrings::auditLicenseSignalsLabel() const
{
    return in({u"Evidence signals", u"Dấu hiệu bằng chứng", u"증거 항목", u"検出された証拠", u"证据线索"});
}

QString AppStrings::auditEvidenceNotice() const
{
    return in({
        u"A valid digital signature only verifies the app file or publisher; it does not mean a key or activation receipt was detected.",
        u"Chữ ký số hợp lệ chỉ xác minh file app hoặc nhà phát hành; không có nghĩa là đã phát hiện key hoặc receipt kích hoạt.",
        u"유효한 앱 서명은 키 또는 활성화 영수증이 감지되었다는 의미가 아닙니다.",
        u"アプリ署名が有効でも、キーやアクティベーションレシートが検出されたとは限りません。",
        u"应用签名有效并不表示已检测到密钥或激活收据。",
    });
}

QString AppStrings::auditLicenseNotice() const
{
    return in({
        u"License evidence is local technical evidence, not a verdict. Origin, ownership, current subscription status, and permitted scope require human review.",
        u"Bằng chứng bản quyền là bằng chứng kỹ thuật trên máy, không phải kết luận. Nguồn gốc, chủ thể sở hữu, trạng thái thuê bao hiện tại và phạm vi sử dụng vẫn cần người phụ trách thẩm tra.",
        u"라이선스 증거는 이 Mac에서 수집한 기술적 증거일 뿐이며 판정이 아닙니다. 출처, 소유권, 현재 구독 상태, 허용된 사용 범위는 담당자가 확인해야 합니다.",
        u"ライセンスの証拠はこのMac上で得られた技術的なものであり、判定ではありません。出所、所有者、現在のサブスクリプションの状態、許可された利用範囲は担当者による確認が必要です。",
        u"许可证证据只是本机上的技术证据，并非结论。来源、所有权、当前订阅状态及允许的使用范围需由负责人核实。",
    });
}

QString AppStrings::reportTitle() const
{
    return in({u"Software inventory report", u"Báo cáo kiểm kê phần mềm", u"소프트웨어 인벤토리 보고서",
               u"ソフトウェアインベントリのレポート", u"软件盘点报告"});
}

QString AppStrings::reportDescription() const
{
    return in({
        u"Fill in the inspector and the report title, review the contents, then export the PDF.",
        u"Điền người kiểm tra và tiêu đề báo cáo, xem lại nội dung rồi xuất PDF.",
        u"검사자와 보고서 제목을 입력하고 내용을 확인한 다음 PDF로 내보내세요.",
        u"検査担当者とレポートのタイトルを入力し、内容を確認してからPDFを書き出してください。",
        u"填写检查人和报告标题，核对内容后导出 PDF。",
    });
}

QString AppStrings::writingReport() const
{
    return in({u"Writing report", u"Đang ghi report", u"보고서 작성 중", u"レポートを書き込み中", u"正在写入报告"});
}

} // namespace Tavelo
