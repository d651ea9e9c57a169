#include "HttpTransport.h"

namespace Tavelo
{

HttpTransport::~HttpTransport() = default;

} // namespace Tavelo
