import QtQuick
import Tavelo.Views

// Nothing has been scanned yet.
EmptyState {
    required property DeskrigViewModel viewModel

    symbol: "magnifyingglass"
    title: viewModel.strings.auditNoDataTitle()
    detail: viewModel.strings.auditNoDataDetail()
    buttonName: "scan-mac-button"
    buttonSymbol: "magnifyingglass"
    buttonText: viewModel.strings.screenText(Screens.ScreenText.scanMac)
    buttonEnabled: !viewModel.isReportRefreshing
    onStarted: viewModel.scanMac()
}
