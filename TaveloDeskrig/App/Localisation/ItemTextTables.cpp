#include "ItemTextTables.h"

using namespace Qt::StringLiterals;

namespace Tavelo
{

QString ItemTranslations::in(AppLanguage language) const
{
    const auto orEnglish = [this](const QString &text) { return text.isEmpty() ? english : text; };
    switch (language) {
    case AppLanguage::english:
        return english;
    case AppLanguage::vietnamese:
        return {};
    case AppLanguage::korean:
        return orEnglish(korean);
    case AppLanguage::japanese:
        return orEnglish(japanese);
    case AppLanguage::chinese:
        return orEnglish(chinese);
    }
    Q_UNREACHABLE();
}

const QHash<QString, ItemTranslations> &itemDescriptions()
{
    static const QHash<QString, ItemTranslations> table{
        {u"libreoffice"_s,
         {
             .english = u"Document editor, spreadsheets, presentations, Vietnamese UI, and Vietnamese spellcheck."_s,
             .korean = u"문서 편집, 스프레드시트, 프레젠테이션, 베트남어 UI와 맞춤법 검사를 제공합니다."_s,
             .japanese = u"文書編集、表計算、プレゼンテーション、ベトナム語UIとベトナム語スペルチェック。"_s,
             .chinese = u"文档编辑、电子表格、演示文稿、越南语界面和越南语拼写检查。"_s,
         }},
        {u"ibus-unikey"_s,
         {
             .english = u"Vietnamese Telex/VNI input method for macOS."_s,
             .korean = u"macOS용 베트남어 Telex/VNI 입력기입니다."_s,
             .japanese = u"macOS用ベトナム語Telex/VNI入力メソッド。"_s,
             .chinese = u"macOS 的越南语 Telex/VNI 输入法。"_s,
         }},
        {u"office-fonts"_s,
         {
             .english = u"Noto, CJK, emoji, and Microsoft Office-compatible fonts."_s,
             .korean = u"Noto, CJK, 이모지, Microsoft Office 호환 글꼴입니다."_s,
             .japanese = u"Noto、CJK、絵文字、Microsoft Office互換フォント。"_s,
             .chinese = u"Noto、CJK、emoji 和 Microsoft Office 兼容字体。"_s,
         }},
        {u"evince"_s,
         {
             .english = u"Open PDFs and common documents with a dedicated viewer."_s,
             .korean = u"전용 뷰어로 PDF와 일반 문서를 엽니다."_s,
             .japanese = u"専用ビューアでPDFと一般的な文書を開きます。"_s,
             .chinese = u"用专用查看器打开 PDF 和常见文档。"_s,
         }},
        {u"pdfarranger"_s,
         {
             .english = u"Merge, split, and reorder PDF pages."_s,
             .korean = u"PDF 페이지를 병합, 분할, 재정렬합니다."_s,
             .japanese = u"PDFページを結合、分割、並べ替えます。"_s,
             .chinese = u"合并、拆分和重新排序 PDF 页面。"_s,
         }},
        {u"xournalpp"_s,
         {
             .english = u"Annotate, sign, and mark up PDFs."_s,
             .korean = u"PDF에 주석, 서명, 마크업을 추가합니다."_s,
             .japanese = u"PDFに注釈、署名、マークアップを追加します。"_s,
             .chinese = u"为 PDF 添加批注、签名和标记。"_s,
         }},
        {u"archive-tools"_s,
         {
             .english = u"ZIP/unzip, 7-Zip, and a GUI archive utility."_s,
             .korean = u"ZIP/unzip, 7-Zip, GUI 압축 도구입니다."_s,
             .japanese = u"ZIP/unzip、7-Zip、GUI圧縮ツール。"_s,
             .chinese = u"ZIP/unzip、7-Zip 和 GUI 压缩工具。"_s,
         }},
        {u"thunderbird"_s,
         {
             .english = u"Email client for office work."_s,
             .korean = u"업무용 이메일 클라이언트입니다."_s,
             .japanese = u"オフィス業務向けメールクライアント。"_s,
             .chinese = u"办公邮件客户端。"_s,
         }},
        {u"flameshot"_s,
         {
             .english = u"Fast screenshots and annotations with Flameshot."_s,
             .korean = u"Flameshot으로 빠른 스크린샷과 주석을 처리합니다."_s,
             .japanese = u"Flameshotで高速スクリーンショットと注釈を処理します。"_s,
             .chinese = u"使用 Flameshot 快速截图和标注。"_s,
         }},
        {u"onlyoffice"_s,
         {
             .english = u"Open and edit DOCX, XLSX, and PPTX with strong Microsoft Office compatibility."_s,
             .korean = u"DOCX, XLSX, PPTX를 Microsoft Office 호환성 중심으로 열고 편집합니다."_s,
             .japanese = u"DOCX、XLSX、PPTXを高いMicrosoft Office互換性で開いて編集します。"_s,
             .chinese = u"以较高 Microsoft Office 兼容性打开和编辑 DOCX、XLSX、PPTX。"_s,
         }},
        {u"onlyoffice-mime"_s,
         {
             .english = u"Make ONLYOFFICE the default app for DOC, DOCX, XLS, XLSX, PPT, and PPTX files."_s,
             .korean = u"DOC, DOCX, XLS, XLSX, PPT, PPTX의 기본 앱을 ONLYOFFICE로 지정합니다."_s,
             .japanese = u"DOC、DOCX、XLS、XLSX、PPT、PPTXの既定アプリをONLYOFFICEにします。"_s,
             .chinese = u"将 DOC、DOCX、XLS、XLSX、PPT、PPTX 的默认应用设为 ONLYOFFICE。"_s,
         }},
        {u"microsoft-365"_s,
         {
             .english = u"Create a shortcut for Office Online."_s,
             .korean = u"Office Online 바로가기를 만듭니다."_s,
             .japanese = u"Office Onlineのショートカットを作成します。"_s,
             .chinese = u"创建 Office Online 快捷方式。"_s,
         }},
        {u"printer-drivers"_s,
         {
             .english = u"Configure printers through macOS Settings."_s,
             .korean = u"macOS 설정에서 프린터를 구성합니다."_s,
             .japanese = u"macOS設定からプリンタを構成します。"_s,
             .chinese = u"通过 macOS 设置配置打印机。"_s,
         }},
        {u"scanner-tools"_s,
         {
             .english = u"Install SANE backend and scanimage; Image Capture remains the default GUI scan app."_s,
             .korean = u"SANE backend와 scanimage를 설치하며, Image Capture는 기본 GUI 스캔 앱으로 유지합니다."_s,
             .japanese =
                 u"SANE backendとscanimageをインストールし、Image Captureは既定のGUIスキャンアプリとして残します。"_s,
             .chinese = u"安装 SANE backend 和 scanimage；Image Capture 仍是默认 GUI 扫描应用。"_s,
         }},
        {u"telegram"_s,
         {
             .english = u"Fast chat and file sharing."_s,
             .korean = u"빠른 채팅과 파일 공유."_s,
             .japanese = u"高速チャットとファイル共有。"_s,
             .chinese = u"快速聊天和文件共享。"_s,
         }},
        {u"slack"_s,
         {
             .english = u"Business team chat."_s,
             .korean = u"업무용 팀 채팅."_s,
             .japanese = u"ビジネス向けチームチャット。"_s,
             .chinese = u"企业团队聊天。"_s,
         }},
        {u"teams-shortcut"_s,
         {
             .english = u"Create a shortcut for Microsoft Teams web."_s,
             .korean = u"Microsoft Teams 웹 바로가기를 만듭니다."_s,
             .japanese = u"Microsoft Teams Webのショートカットを作成します。"_s,
             .chinese = u"创建 Microsoft Teams 网页快捷方式。"_s,
         }},
        {u"meet-shortcut"_s,
         {
             .english = u"Create a shortcut for Google Meet."_s,
             .korean = u"Google Meet 바로가기를 만듭니다."_s,
             .japanese = u"Google Meetのショートカットを作成します。"_s,
             .chinese = u"创建 Google Meet 快捷方式。"_s,
         }},
        {u"zalo-shortcut"_s,
         {
             .english = u"Create a shortcut for Zalo Web."_s,
             .korean = u"Zalo Web 바로가기를 만듭니다."_s,
             .japanese = u"Zalo Webのショートカットを作成します。"_s,
             .chinese = u"创建 Zalo Web 快捷方式。"_s,
         }},
        {u"vlc"_s,
         {
             .english = u"Play popular video and audio formats."_s,
             .korean = u"일반적인 비디오와 오디오 형식을 재생합니다."_s,
             .japanese = u"一般的な動画と音声形式を再生します。"_s,
             .chinese = u"播放常见视频和音频格式。"_s,
         }},
        {u"gimp"_s,
         {
             .english = u"Edit images."_s,
             .korean = u"이미지를 편집합니다."_s,
             .japanese = u"画像を編集します。"_s,
             .chinese = u"编辑图片。"_s,
         }},
        {u"inkscape"_s,
         {
             .english = u"Design vector graphics and SVG files."_s,
             .korean = u"벡터 그래픽과 SVG 파일을 디자인합니다."_s,
             .japanese = u"ベクターグラフィックとSVGファイルを作成します。"_s,
             .chinese = u"设计矢量图形和 SVG 文件。"_s,
         }},
        {u"ocrmypdf"_s,
         {
             .english = u"OCR Vietnamese PDF documents."_s,
             .korean = u"베트남어 PDF 문서를 OCR 처리합니다."_s,
             .japanese = u"ベトナム語PDF文書をOCR処理します。"_s,
             .chinese = u"对越南语 PDF 文档执行 OCR。"_s,
         }},
        {u"remmina"_s,
         {
             .english = u"Remote Desktop/RDP client for macOS."_s,
             .korean = u"macOS용 원격 데스크톱/RDP 클라이언트입니다."_s,
             .japanese = u"macOS用リモートデスクトップ/RDPクライアント。"_s,
             .chinese = u"macOS 的远程桌面/RDP 客户端。"_s,
         }},
        {u"keepassxc"_s,
         {
             .english = u"Offline password manager."_s,
             .korean = u"오프라인 비밀번호 관리자입니다."_s,
             .japanese = u"オフラインパスワードマネージャー。"_s,
             .chinese = u"离线密码管理器。"_s,
         }},
        {u"deja-dup"_s,
         {
             .english = u"Linux backup tooling is not automatically replaced by Time Machine."_s,
             .korean = u"Linux 백업 도구는 Time Machine으로 자동 대체하지 않습니다."_s,
             .japanese = u"LinuxバックアップツールはTime Machineに自動置換しません。"_s,
             .chinese = u"Linux 备份工具不会自动替换为 Time Machine。"_s,
         }},
        {u"gnome-disks"_s,
         {
             .english = u"Open Disk Utility to manage disks, volumes, and USB devices on macOS."_s,
             .korean = u"macOS Disk Utility로 디스크, 볼륨, USB 장치를 관리합니다."_s,
             .japanese = u"macOS Disk Utilityでディスク、ボリューム、USBデバイスを管理します。"_s,
             .chinese = u"打开 Disk Utility 管理磁盘、卷和 USB 设备。"_s,
         }},
        {u"rclone"_s,
         {
             .english = u"Cloud-storage sync through CLI is outside the default Mac catalog."_s,
             .korean = u"CLI 기반 클라우드 스토리지 동기화는 기본 Mac 카탈로그 범위 밖입니다."_s,
             .japanese = u"CLIによるクラウドストレージ同期は既定のMacカタログ範囲外です。"_s,
             .chinese = u"通过 CLI 同步云存储不在默认 Mac 目录范围内。"_s,
         }},
    };
    return table;
}

const QHash<QString, ItemTranslations> &replacementNotes()
{
    static const QHash<QString, ItemTranslations> table{
        {u"libreoffice"_s,
         {
             .english =
                 u"Maps Linux LibreOffice packages to the LibreOffice cask, Vietnamese language pack, and Vietnamese dictionary extension."_s,
             .korean =
                 u"Linux LibreOffice 패키지를 LibreOffice cask, 베트남어 언어팩, 베트남어 사전 확장으로 매핑합니다."_s,
             .japanese =
                 u"Linux LibreOfficeパッケージをLibreOffice cask、ベトナム語言語パック、ベトナム語辞書拡張に対応付けます。"_s,
             .chinese = u"将 Linux LibreOffice 包映射到 LibreOffice cask、越南语语言包和越南语字典扩展。"_s,
         }},
        {u"ibus-unikey"_s,
         {
             .english =
                 u"IBus Unikey is a Linux input method; macOS uses OpenKey as a closer Vietnamese input replacement."_s,
             .korean =
                 u"IBus Unikey는 Linux 입력기입니다. macOS에서는 더 가까운 대체 항목으로 OpenKey cask를 사용합니다."_s,
             .japanese = u"IBus UnikeyはLinux入力メソッドです。macOSでは近い代替としてOpenKey caskを使います。"_s,
             .chinese = u"IBus Unikey 是 Linux 输入法；macOS 使用 OpenKey cask 作为更接近的越南语输入替代。"_s,
         }},
        {u"office-fonts"_s,
         {
             .english = u"Maps the Linux office font set to Homebrew font casks."_s,
             .korean = u"Linux 오피스 글꼴 세트를 Homebrew font cask로 매핑합니다."_s,
             .japanese = u"Linuxのオフィスフォント群をHomebrew font caskに対応付けます。"_s,
             .chinese = u"将 Linux 办公字体集合映射到 Homebrew font casks。"_s,
         }},
        {u"evince"_s,
         {
             .english =
                 u"Evince does not have a stable Homebrew macOS package; Skim is the installable document viewer replacement."_s,
             .korean =
                 u"Evince는 안정적인 Homebrew macOS 패키지가 없으므로 Skim을 설치 가능한 문서 뷰어 대체 항목으로 사용합니다."_s,
             .japanese =
                 u"Evinceには安定したHomebrew macOSパッケージがないため、Skimをインストール可能な文書ビューア代替として使います。"_s,
             .chinese = u"Evince 没有稳定的 Homebrew macOS 包；Skim 是可安装的文档查看器替代。"_s,
         }},
        {u"pdfarranger"_s,
         {
             .english = u"PDFsam Basic is the closest macOS replacement."_s,
             .korean = u"PDFsam Basic이 macOS에서 가장 가까운 대체 항목입니다."_s,
             .japanese = u"PDFsam BasicがmacOSで最も近い代替です。"_s,
             .chinese = u"PDFsam Basic 是 macOS 上最接近的替代。"_s,
         }},
        {u"xournalpp"_s,
         {
             .english = u"Skim or Preview Markup replaces Xournal++ depending on the workflow."_s,
             .korean = u"워크플로에 따라 Skim 또는 Preview Markup이 Xournal++를 대체합니다."_s,
             .japanese = u"ワークフローに応じてSkimまたはPreview MarkupがXournal++を代替します。"_s,
             .chinese = u"根据工作流，Skim 或 Preview Markup 可替代 Xournal++。"_s,
         }},
        {u"archive-tools"_s,
         {
             .english = u"macOS includes zip/unzip; p7zip replaces p7zip-full and Keka replaces File Roller."_s,
             .korean = u"macOS에는 zip/unzip이 포함되어 있으며 p7zip은 p7zip-full, Keka는 File Roller를 대체합니다."_s,
             .japanese = u"macOSにはzip/unzipが含まれ、p7zipはp7zip-full、KekaはFile Rollerを代替します。"_s,
             .chinese = u"macOS 内置 zip/unzip；p7zip 替代 p7zip-full，Keka 替代 File Roller。"_s,
         }},
        {u"onlyoffice"_s,
         {
             .english = u"Linux snap workflow is replaced by a Homebrew cask."_s,
             .korean = u"Linux snap 워크플로를 Homebrew cask로 대체합니다."_s,
             .japanese = u"Linux snapワークフローをHomebrew caskに置き換えます。"_s,
             .chinese = u"Linux snap 工作流由 Homebrew cask 替代。"_s,
         }},
        {u"onlyoffice-mime"_s,
         {
             .english = u"xdg-mime is replaced by duti and Launch Services."_s,
             .korean = u"xdg-mime은 duti와 Launch Services로 대체합니다."_s,
             .japanese = u"xdg-mimeをdutiとLaunch Servicesに置き換えます。"_s,
             .chinese = u"xdg-mime 由 duti 和 Launch Services 替代。"_s,
         }},
        {u"microsoft-365"_s,
         {
             .english = u"Creates a .webloc file in ~/Applications/Tavelo Deskrig/."_s,
             .korean = u"~/Applications/Tavelo Deskrig/에 .webloc 파일을 만듭니다."_s,
             .japanese = u"~/Applications/Tavelo Deskrig/に.weblocファイルを作成します。"_s,
             .chinese = u"在 ~/Applications/Tavelo Deskrig/ 中创建 .webloc 文件。"_s,
         }},
        {u"printer-drivers"_s,
         {
             .english =
                 u"macOS uses AirPrint, vendor drivers, and Printers & Scanners instead of Linux printer-driver-all packages."_s,
             .korean =
                 u"macOS는 Linux printer-driver-all 대신 AirPrint, 제조사 드라이버, Printers & Scanners를 사용합니다."_s,
             .japanese =
                 u"macOSはLinux printer-driver-allパッケージの代わりにAirPrint、メーカー製ドライバ、Printers & Scannersを使います。"_s,
             .chinese = u"macOS 使用 AirPrint、厂商驱动和 Printers & Scanners，而不是 Linux printer-driver-all 包。"_s,
         }},
        {u"scanner-tools"_s,
         {
             .english =
                 u"Simple Scan/AirScan maps to sane-backends on macOS, with Image Capture available for GUI scanning."_s,
             .korean =
                 u"Simple Scan/AirScan은 macOS의 sane-backends로 매핑되며 GUI 스캔에는 Image Capture를 사용할 수 있습니다."_s,
             .japanese =
                 u"Simple Scan/AirScanはmacOSのsane-backendsに対応付け、GUIスキャンにはImage Captureを使えます。"_s,
             .chinese = u"Simple Scan/AirScan 映射到 macOS 的 sane-backends，并可使用 Image Capture 进行 GUI 扫描。"_s,
         }},
        {u"teams-shortcut"_s,
         {
             .english = u"Creates a .webloc file instead of a Linux .desktop file."_s,
             .korean = u"Linux .desktop 파일 대신 .webloc 파일을 만듭니다."_s,
             .japanese = u"Linux .desktopファイルの代わりに.weblocファイルを作成します。"_s,
             .chinese = u"创建 .webloc 文件，而不是 Linux .desktop 文件。"_s,
         }},
        {u"meet-shortcut"_s,
         {
             .english = u"Creates a .webloc file instead of a Linux .desktop file."_s,
             .korean = u"Linux .desktop 파일 대신 .webloc 파일을 만듭니다."_s,
             .japanese = u"Linux .desktopファイルの代わりに.weblocファイルを作成します。"_s,
             .chinese = u"创建 .webloc 文件，而不是 Linux .desktop 文件。"_s,
         }},
        {u"zalo-shortcut"_s,
         {
             .english = u"Creates a .webloc file instead of a Linux .desktop file."_s,
             .korean = u"Linux .desktop 파일 대신 .webloc 파일을 만듭니다."_s,
             .japanese = u"Linux .desktopファイルの代わりに.weblocファイルを作成します。"_s,
             .chinese = u"创建 .webloc 文件，而不是 Linux .desktop 文件。"_s,
         }},
        {u"deja-dup"_s,
         {
             .english =
                 u"Out of scope on macOS: the app does not configure backup tools to avoid risky data operations."_s,
             .korean = u"macOS 범위 밖입니다. 데이터 위험을 피하기 위해 백업 도구를 구성하지 않습니다."_s,
             .japanese = u"macOSでは対象外です。データ操作リスクを避けるためバックアップツールは構成しません。"_s,
             .chinese = u"在 macOS 上不处理：为避免敏感数据操作风险，应用不会配置备份工具。"_s,
         }},
        {u"gnome-disks"_s,
         {
             .english = u"GNOME Disks is replaced by the built-in macOS Disk Utility."_s,
             .korean = u"GNOME Disks는 macOS 내장 Disk Utility로 대체합니다."_s,
             .japanese = u"GNOME DisksはmacOS内蔵のDisk Utilityに置き換えます。"_s,
             .chinese = u"GNOME Disks 由 macOS 内置 Disk Utility 替代。"_s,
         }},
        {u"rclone"_s,
         {
             .english =
                 u"Out of scope for the safe default office installer on macOS. Admins can install it manually with Homebrew."_s,
             .korean = u"안전한 기본 오피스 설치 범위 밖입니다. 관리자는 필요 시 Homebrew로 수동 설치할 수 있습니다."_s,
             .japanese =
                 u"安全な既定オフィスインストーラの範囲外です。管理者は必要に応じてHomebrewで手動インストールできます。"_s,
             .chinese = u"不在安全默认办公安装器范围内。管理员可按需通过 Homebrew 手动安装。"_s,
         }},
    };
    return table;
}

} // namespace Tavelo
