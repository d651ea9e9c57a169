#pragma once

#include <QColor>

/// The colours of the PDF report that more than one of its pieces uses.
namespace Tavelo::ReportColors
{

inline constexpr QColor blue(0x25, 0x63, 0xEB);
inline constexpr QColor violet(0x7C, 0x3A, 0xED);
inline constexpr QColor teal(0x0F, 0x9F, 0x8F);
inline constexpr QColor orange(0xF9, 0x73, 0x16);
inline constexpr QColor green(0x16, 0xA3, 0x4A);
inline constexpr QColor sky(0x02, 0x84, 0xC7);

} // namespace Tavelo::ReportColors
