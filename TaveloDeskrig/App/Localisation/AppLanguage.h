#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace Tavelo
{

class UserDefaults;

/// A language that the interface and the reports speak. English is the one that stands in where another has no text.
enum class AppLanguage { english, vietnamese, korean, japanese, chinese };

/// The code that settings and reports hold: "en", "vi", "ko", "ja", "zh".
QString rawValue(AppLanguage language);

/// The language with that code, compared exactly; nothing for any other text.
std::optional<AppLanguage> appLanguage(QStringView rawValue);

/// The language's name in itself, and in English.
QString nativeName(AppLanguage language);
QString englishName(AppLanguage language);

namespace AppLanguages
{

/// All languages, in the order in which the interface offers them.
const QList<AppLanguage> &supported();

/// Where the user's choice is kept among the user defaults, as its code.
inline constexpr QStringView storedKey = u"tavelo.uiLanguage";

/// The user's choice; English where there is none that is known. The system's own language is not asked.
AppLanguage storedDefault(const UserDefaults &defaults);

} // namespace AppLanguages

} // namespace Tavelo
