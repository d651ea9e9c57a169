#include "Workshop.h"

#include "Catalog.h"
#include "MainQueue.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo
{

Workshop::Workshop(const PlatformServices &on)
    : services(on), runtime(on), log(on, runtime, heard.uiLog(), heard.uiProgress()), runner(on, runtime, log),
      backend(on, heard.uiLog(), heard.uiProgress())
{
}

QStringList Workshop::texts()
{
    services.mainQueue->service();
    QStringList texts = heard.texts();
    texts.removeIf([](const QString &text) { return text.startsWith(u"PROGRESS"); });
    return texts;
}

QString Workshop::fractions()
{
    services.mainQueue->service();
    QStringList numbers;
    for (const InstallProgressUpdate &update : std::as_const(heard.progress))
        numbers.append(update.fraction ? QString::number(*update.fraction, 'g', 4) : u"-"_s);
    return numbers.join(u' ');
}

AppItem catalogItem(const QString &id)
{
    const QList<AppItem> &items = Catalog::items();
    return *std::find_if(items.begin(), items.end(), [&id](const AppItem &item) { return item.id == id; });
}

AppItem anItem(AppKind kind, const QString &packages, const QString &appPaths, const QString &commands)
{
    AppItem item;
    item.id = u"item"_s;
    item.macName = u"Item"_s;
    item.kind = kind;
    item.packages = packages.split(u' ', Qt::SkipEmptyParts);
    item.appPaths = appPaths.split(u' ', Qt::SkipEmptyParts);
    item.commands = commands.split(u' ', Qt::SkipEmptyParts);
    return item;
}

void addBrew(const TemporaryMac &mac, const QString &listed, const QString &refused)
{
    mac.furnish(u"mkdir -p brew/formula brew/cask brew/refused"_s);
    for (const QString &entry : listed.split(u' ', Qt::SkipEmptyParts))
        mac.write(u"/brew/"_s + (parseMixedBrewPackage(entry).cask ? u"cask/"_s : u"formula/"_s) +
                      parseMixedBrewPackage(entry).name,
                  {});
    if (!refused.isEmpty())
        mac.write(u"/brew/refused/"_s + refused, {});
    mac.addTool(u"/opt/homebrew/bin/brew"_s, R"(cd "$ROOT/brew"
case "$*" in *--cask*) kind=cask ;; *) kind=formula ;; esac
case $1 in
list) if [ "$last" = -1 ]; then ls "$kind"; else test -e "$kind/$last"; fi ;;
install) test ! -e "refused/$last" && : >"$kind/$last" ;;
uninstall) test ! -e "refused/$last" && rm "$kind/$last" ;;
esac)");
}

void addSigningTools(const TemporaryMac &mac)
{
    mac.addTool(u"/usr/bin/codesign"_s, R"(team=$(cat "$ROOT$last/team")
case "$1 $*" in
"-dv "*) echo "TeamIdentifier=$team" >&2 ;;
*"OU] = \"$team\""*) ;;
*) exit 3 ;;
esac)");
    mac.addTool(u"/usr/sbin/spctl"_s, "test ! -e \"$ROOT$last/rejected\"");
}

} // namespace Tavelo
