#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace Tavelo
{

/// A language that the interface and the reports speak. English is the one that stands in where another has no text.
enum class AppLanguage { english, vietnamese, korean, japanese, chinese };

/// The code that settings and reports hold: "en", "vi", "ko", "ja", "zh".
QString rawValue(AppLanguage language);

/// The language with that code, compared exactly; nothing for any other text.
std::optional<AppLanguage> appLanguage(QStringView rawValue);

namespace AppLanguages
{

/// All languages, in the order in which the interface offers them.
const QList<AppLanguage> &supported();

} // namespace AppLanguages

} // namespace Tavelo
