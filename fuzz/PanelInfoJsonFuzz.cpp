// Feeds arbitrary text to the readers of the panel's information blocks and of the hatch
// description. Whatever the text, no reader may crash, read out of bounds or allocate
// without bound; a block that was read must write, and read back equal.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "AcString.h"
#include "headless/TextCodec.h"
#include "panel/HatchPatternInfo.h"
#include "panel/NumberingAndEncodingInfo.h"
#include "panel/PanelBasicInfo.h"
#include "panel/PanelMergeInfo.h"
#include "panel/PanelShapeInfo.h"

namespace {

template <typename Record>
void CheckBlock(const AcString& text)
{
    Record record;
    AcString message;
    if (!record.FromJson(text, message)) {
        if (message.isEmpty())
            std::abort();  // a refusal always says why
        return;
    }
    AcString json;
    Record again;
    if (!record.ToJson(json, message) || !again.FromJson(json, message) || again != record)
        std::abort();
}

void CheckHatch(const AcString& text)
{
    DbxPanel::HatchPatternInfo info;
    if (!info.FromJson(text))
        return;
    const AcString json = info.ToJson();
    DbxPanel::HatchPatternInfo again;
    if (json.isEmpty() || !again.FromJson(json) || again != info)
        std::abort();
}

void CheckAll(const AcString& text)
{
    CheckBlock<DbxPanel::PanelBasicInfo>(text);
    CheckBlock<DbxPanel::NumberingAndEncodingInfo>(text);
    CheckBlock<DbxPanel::PanelMergeInfo>(text);
    CheckBlock<DbxPanel::PanelShapeInfo>(text);
    CheckHatch(text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    // The bytes as UTF-8, the form of the seeds; then as raw wide characters, which reach
    // values no UTF-8 decoder produces (lone surrogates, values beyond Unicode).
    CheckAll(AcString(headless::fromUtf8(bytes)));
    std::wstring units(size / sizeof(wchar_t), L'\0');
    if (!units.empty())
        std::memcpy(&units[0], data, units.size() * sizeof(wchar_t));
    CheckAll(AcString(units));
    return 0;
}
