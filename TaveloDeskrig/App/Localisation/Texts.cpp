#include "Texts.h"

namespace Tavelo
{

QString Texts::in(AppLanguage language) const
{
    switch (language) {
    case AppLanguage::english:
        return english.toString();
    case AppLanguage::vietnamese:
        return vietnamese.toString();
    case AppLanguage::korean:
        return korean.toString();
    case AppLanguage::japanese:
        return japanese.toString();
    case AppLanguage::chinese:
        return chinese.toString();
    }
    Q_UNREACHABLE();
}

} // namespace Tavelo
