#pragma once

#include "DeskrigViewModel.h"

#include <QtQml/qqml.h>

// What views know of the lower rooms, under the same names. Values begin with a small letter.

namespace Tavelo::Registered
{

namespace LabelNames
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(Tavelo::Labels)
QML_NAMED_ELEMENT(Labels)
} // namespace LabelNames

namespace ScreenNames
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(Tavelo::Screens)
QML_NAMED_ELEMENT(Screens)
} // namespace ScreenNames

namespace SheetNames
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(Tavelo::Sheets)
QML_NAMED_ELEMENT(Sheets)
} // namespace SheetNames

struct AppStringsValue {
    Q_GADGET
    QML_FOREIGN(Tavelo::AppStrings)
    QML_VALUE_TYPE(appStrings)
};

struct ShellTextsValue {
    Q_GADGET
    QML_FOREIGN(Tavelo::ShellTexts)
    QML_VALUE_TYPE(shellTexts)
};

struct SheetHeadValue {
    Q_GADGET
    QML_FOREIGN(Tavelo::SheetHead)
    QML_VALUE_TYPE(sheetHead)
};

struct ToastMessageValue {
    Q_GADGET
    QML_FOREIGN(Tavelo::ToastMessage)
    QML_VALUE_TYPE(toastMessage)
};

struct MacReportProfileValue {
    Q_GADGET
    QML_FOREIGN(Tavelo::MacReportProfile)
    QML_VALUE_TYPE(macReportProfile)
};

struct DeskrigViewModelObject {
    Q_GADGET
    QML_FOREIGN(Tavelo::DeskrigViewModel)
    QML_NAMED_ELEMENT(DeskrigViewModel)
    QML_UNCREATABLE("The program has one.")
};

struct CatalogListModelObject {
    Q_GADGET
    QML_FOREIGN(Tavelo::CatalogListModel)
    QML_NAMED_ELEMENT(CatalogListModel)
    QML_UNCREATABLE("The program has one.")
};

struct LogLinesObject {
    Q_GADGET
    QML_FOREIGN(Tavelo::LogLines)
    QML_NAMED_ELEMENT(LogLines)
    QML_UNCREATABLE("The program has one.")
};

struct CheckListModelObject {
    Q_GADGET
    QML_FOREIGN(Tavelo::CheckListModel)
    QML_NAMED_ELEMENT(CheckListModel)
    QML_UNCREATABLE("The program has one.")
};

struct AuditListModelObject {
    Q_GADGET
    QML_FOREIGN(Tavelo::AuditListModel)
    QML_NAMED_ELEMENT(AuditListModel)
    QML_UNCREATABLE("The program has one.")
};

struct GroupListModelObject {
    Q_GADGET
    QML_FOREIGN(Tavelo::GroupListModel)
    QML_NAMED_ELEMENT(GroupListModel)
    QML_UNCREATABLE("The program has one.")
};

struct DetailListModelObject {
    Q_GADGET
    QML_FOREIGN(Tavelo::DetailListModel)
    QML_NAMED_ELEMENT(DetailListModel)
    QML_UNCREATABLE("The program has one.")
};

} // namespace Tavelo::Registered
