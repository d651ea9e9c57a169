#include "Homebrew.h"

#include "Endpoints.h"
#include "InventoryText.h"

#include <algorithm>

namespace Tavelo
{

namespace
{

QString brewManagedLabel(const MixedBrewPackage &package)
{
    return (package.cask ? QStringLiteral("app Homebrew cask ") : QStringLiteral("gói Homebrew formula ")) +
           package.name;
}

QList<MixedBrewPackage> ofOneKind(const QStringList &names, bool cask)
{
    QList<MixedBrewPackage> packages;
    for (const QString &name : names) {
        if (!name.isEmpty())
            packages.append({name, cask});
    }
    return packages;
}

QList<MixedBrewPackage> ofMixedForm(const QStringList &entries)
{
    QList<MixedBrewPackage> packages;
    for (const QString &entry : entries) {
        if (!entry.isEmpty())
            packages.append(parseMixedBrewPackage(entry));
    }
    return packages;
}

/// The arguments of `brew` after its own path; joined with blanks they are also what the log shows.
QStringList installArguments(const MixedBrewPackage &package, bool withLanguage)
{
    QStringList arguments = {QStringLiteral("install")};
    if (package.cask)
        arguments.append(QStringLiteral("--cask"));
    // The language pack is one cask for all languages.
    if (withLanguage && package.cask && package.name == u"libreoffice-language-pack")
        arguments.append(QStringLiteral("--language=vi"));
    return arguments << package.name;
}

QStringList uninstallArguments(const MixedBrewPackage &package)
{
    QStringList arguments = {QStringLiteral("uninstall")};
    if (package.cask)
        arguments.append(QStringLiteral("--cask"));
    return arguments << package.name;
}

QString asDescription(const QStringList &brewArguments)
{
    return QStringLiteral("brew ") + brewArguments.join(u' ');
}

} // namespace

Homebrew::Homebrew(const CommandRunner &runner, const OperationLog &log) : m_runner(runner), m_log(log) {}

bool Homebrew::brewList(const QString &name, bool cask) const
{
    const std::optional<QString> brew = m_runner.brewPath();
    return brew && m_runner.runQuiet({*brew, QStringLiteral("list"),
                                      cask ? QStringLiteral("--cask") : QStringLiteral("--formula"), name}) == 0;
}

Homebrew::Inventory Homebrew::installedBrewInventory() const
{
    const std::optional<QString> brew = m_runner.brewPath();
    if (!brew)
        return {};
    const auto listed = [&](const QString &kind) {
        const QStringList names =
            linesOf(m_runner.runCapture({*brew, QStringLiteral("list"), kind, QStringLiteral("-1")}));
        return QSet<QString>(names.cbegin(), names.cend());
    };
    Inventory inventory;
    inventory.formulas = listed(QStringLiteral("--formula"));
    inventory.casks = listed(QStringLiteral("--cask"));
    return inventory;
}

bool Homebrew::installBrewPackages(const QStringList &packages, bool cask) const
{
    return install(ofOneKind(packages, cask), true);
}

bool Homebrew::installMixedBrewPackages(const QStringList &packages) const
{
    return install(ofMixedForm(packages), false);
}

bool Homebrew::uninstallBrewPackages(const QStringList &packages, bool cask) const
{
    return uninstall(ofOneKind(packages, cask), Unknown::fails);
}

bool Homebrew::uninstallMixedBrewPackages(const QStringList &packages) const
{
    return uninstall(ofMixedForm(packages), Unknown::isPassedOver);
}

bool Homebrew::install(const QList<MixedBrewPackage> &packages, bool withLanguage) const
{
    const std::optional<QString> brew = m_runner.brewPath();
    if (!brew) {
        m_log.log(QStringLiteral("Chưa tìm thấy Homebrew. Cài Homebrew trước: ") + Endpoints::homebrewSiteURL);
        return false;
    }
    m_log.log(QStringLiteral("Đã tìm thấy Homebrew: ") + *brew);

    bool succeeded = true;
    const double count = static_cast<double>(packages.size());
    for (qsizetype index = 0; index < packages.size(); ++index) {
        const MixedBrewPackage &package = packages.at(index);
        const QString label = brewManagedLabel(package);
        const auto fraction = [&](qsizetype done) { return static_cast<double>(done) / count * 0.76 + 0.12; };
        if (brewList(package.name, package.cask)) {
            m_log.log(label + QStringLiteral(" đã có sẵn."));
            m_log.progress(label + QStringLiteral(" đã có sẵn"), fraction(index));
            continue;
        }
        m_log.progress(QStringLiteral("Đang cài ") + label, fraction(index));
        const QStringList arguments = installArguments(package, withLanguage);
        if (m_runner.runCommand(QStringList(*brew) + arguments, asDescription(arguments)) != 0)
            succeeded = false;
        m_log.progress(QStringLiteral("Đã xử lý ") + label, fraction(index + 1));
    }
    return succeeded;
}

bool Homebrew::uninstall(const QList<MixedBrewPackage> &packages, Unknown unknown) const
{
    const std::optional<QString> brew = m_runner.brewPath();
    if (!brew) {
        m_log.log(QStringLiteral("Chưa tìm thấy Homebrew nên không thể gỡ package Homebrew."));
        return false;
    }
    m_log.log(QStringLiteral("Đã tìm thấy Homebrew: ") + *brew);

    bool succeeded = true;
    const double count = static_cast<double>(packages.size());
    int step = 0;
    for (auto package = packages.crbegin(); package != packages.crend(); ++package) {
        const QString label = brewManagedLabel(*package);
        const auto fraction = [&](int done) { return done / count * 0.7 + 0.15; };
        if (!brewList(package->name, package->cask)) {
            m_log.log(label + QStringLiteral(" chưa có receipt cài đặt."));
            if (unknown == Unknown::isPassedOver) {
                m_log.progress(label + QStringLiteral(" chưa có receipt Homebrew"), fraction(step));
                continue;
            }
            m_log.progress(label + QStringLiteral(" không do Homebrew quản lý; không tự động gỡ"), fraction(step));
            succeeded = false;
            ++step;
            continue;
        }
        m_log.progress(QStringLiteral("Đang gỡ ") + label, fraction(step));
        const QStringList arguments = uninstallArguments(*package);
        if (m_runner.runCommand(QStringList(*brew) + arguments, asDescription(arguments)) != 0)
            succeeded = false;
        ++step;
        m_log.progress(QStringLiteral("Đã xử lý gỡ ") + label, fraction(step));
    }
    return succeeded;
}

} // namespace Tavelo
