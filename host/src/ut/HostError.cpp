// Raising the host error with a formatted message.
#include "headless/HostError.h"

#include "WideFormat.h"
#include "headless/TextCodec.h"
#include "rxregsvc.h"

namespace headless {

void raiseHostError(const ACHAR* fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    const std::wstring text = hostut::formatWideV(fmt, args);
    va_end(args);
    throw HostError(toUtf8(text));
}

}  // namespace headless

void acrx_abort(const ACHAR* format, ...)
{
    va_list args;
    va_start(args, format);
    const std::wstring text = hostut::formatWideV(format, args);
    va_end(args);
    throw headless::HostError(headless::toUtf8(text));
}
