#include "FontPreparation.h"

#include "ReportFonts.h"
#include "Symbols.h"

#include <QFontMetricsF>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

/// What of the font the first frame shows. A face that is not named here is made with the first text that has it.
struct Face {
    int pixelSize;
    QFont::Weight weight;
    bool italic = false;
};

constexpr Face firstFaces[]{
    {11, QFont::Normal}, {11, QFont::DemiBold},  {12, QFont::Normal}, {12, QFont::Medium},      {12, QFont::DemiBold},
    {12, QFont::Bold},   {12, QFont::ExtraBold}, {13, QFont::Normal}, {13, QFont::DemiBold},    {13, QFont::Bold},
    {16, QFont::Bold},   {17, QFont::Bold},      {26, QFont::Bold},   {34, QFont::Black, true},
};

/// Finds the font and keeps it, in this thread and for what threads share, with what it takes to set letters side by
/// side.
void load(const QFont &font)
{
    static_cast<void>(QFontMetricsF(font).horizontalAdvance(u"Ag"_s));
}

} // namespace

FontPreparation::FontPreparation(AppLanguage language)
    : m_work(std::async(std::launch::async, [this, language]() noexcept {
          const QFont font = ReportFonts::font(language);
          load(font);
          m_font.set_value(font);
          Symbols::outline({});
      }))
{
}

QFont FontPreparation::finish()
{
    const QFont font = m_font.get_future().get();
    for (const Face &first : firstFaces) {
        QFont face = font;
        face.setPixelSize(first.pixelSize);
        face.setWeight(first.weight);
        face.setItalic(first.italic);
        load(face);
    }
    return font;
}

} // namespace Tavelo
