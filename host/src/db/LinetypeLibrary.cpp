// LinetypeLibrary: built-in linetypes, the classic linetype file text, and loading them
// into a database's linetype table.
#include "LinetypeLibrary.h"

#include <charconv>
#include <cmath>
#include <cwctype>
#include <fstream>
#include <iterator>

#include "AcDbDatabase.h"
#include "dbsymtb.h"
#include "headless/TextCodec.h"

namespace hostdb {

namespace {

// Millimetres per inch: metric files hold the inch patterns in millimetres.
constexpr double kMillimetresPerInch = 25.4;
// A linetype file of the host is a few kilobytes; anything near this is not one.
constexpr std::streamoff kMaxFileBytes = 4 * 1024 * 1024;
// The host's limit on dashes in one simple linetype.
constexpr size_t kMaxDashes = 12;

struct BaseDefinition {
    const wchar_t* name;
    const wchar_t* picture;  // the description after the name
    std::vector<double> dashes;
};

const std::vector<BaseDefinition>& baseDefinitions()
{
    static const std::vector<BaseDefinition> definitions = {
        {L"BORDER", L"__ __ . __ __ . __ __ .", {0.5, -0.25, 0.5, -0.25, 0.0, -0.25}},
        {L"CENTER", L"____ _ ____ _ ____ _", {1.25, -0.25, 0.25, -0.25}},
        {L"DASHDOT", L"__ . __ . __ . __ .", {0.5, -0.25, 0.0, -0.25}},
        {L"DASHED", L"__ __ __ __ __ __", {0.5, -0.25}},
        {L"DIVIDE", L"__ . . __ . . __ . .", {0.5, -0.25, 0.0, -0.25, 0.0, -0.25}},
        {L"DOT", L". . . . . . . . . .", {0.0, -0.25}},
        {L"HIDDEN", L"_ _ _ _ _ _ _ _ _ _", {0.25, -0.125}},
        {L"PHANTOM", L"_____ _ _ _____ _ _", {1.25, -0.25, 0.25, -0.25, 0.25, -0.25}},
    };
    return definitions;
}

// "dashed" -> "Dashed": descriptions start with the name in its usual spelling.
std::wstring titleCase(const wchar_t* name)
{
    std::wstring text(name);
    for (size_t i = 1; i < text.size(); ++i)
        text[i] = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(text[i])));
    return text;
}

std::string_view trim(std::string_view text)
{
    const char* spaces = " \t\r\n";
    const size_t first = text.find_first_not_of(spaces);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

bool parseNumber(std::string_view text, double& value)
{
    text = trim(text);
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    if (text.empty())
        return false;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    return ec == std::errc() && end == text.data() + text.size() && std::isfinite(value);
}

// "A,.5,-.25" -> {.5, -.25}; false for anything else, complex elements included.
bool parsePattern(std::string_view line, std::vector<double>& dashes)
{
    line = trim(line);
    if (line.empty() || (line[0] != 'A' && line[0] != 'a'))
        return false;
    line = trim(line.substr(1));
    if (line.empty() || line.front() != ',')
        return false;
    line.remove_prefix(1);
    dashes.clear();
    while (!line.empty()) {
        const size_t comma = line.find(',');
        double value = 0.0;
        if (!parseNumber(line.substr(0, comma), value) || dashes.size() == kMaxDashes)
            return false;
        dashes.push_back(value);
        if (comma == std::string_view::npos)
            break;
        line.remove_prefix(comma + 1);
    }
    return !dashes.empty();
}

// A metric file: its name, without folders and extension, ends in "iso".
bool isMetricFileName(const std::wstring& fileName)
{
    const size_t slash = fileName.find_last_of(L"/\\");
    std::wstring stem = fileName.substr(slash == std::wstring::npos ? 0 : slash + 1);
    stem = stem.substr(0, stem.rfind(L'.'));
    if (stem.size() < 3)
        return false;
    std::wstring tail = stem.substr(stem.size() - 3);
    for (wchar_t& c : tail)
        c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    return tail == L"iso";
}

bool hasWildcard(const ACHAR* pattern)
{
    for (const ACHAR* p = pattern; *p != L'\0'; ++p) {
        if (*p == L'*' || *p == L'?')
            return true;
    }
    return false;
}

}  // namespace

std::vector<LinetypeDefinition> LinetypeLibrary::builtIn(bool metric)
{
    const double unit = metric ? kMillimetresPerInch : 1.0;
    struct Variant {
        const wchar_t* suffix;
        const wchar_t* remark;
        double scale;
    };
    const Variant variants[] = {{L"", L"", 1.0}, {L"2", L" (.5x)", 0.5}, {L"X2", L" (2x)", 2.0}};
    std::vector<LinetypeDefinition> out;
    for (const BaseDefinition& base : baseDefinitions()) {
        for (const Variant& variant : variants) {
            LinetypeDefinition definition;
            definition.name = std::wstring(base.name) + variant.suffix;
            definition.description = titleCase(base.name) + variant.remark + L" " + base.picture;
            for (double dash : base.dashes)
                definition.dashes.push_back(dash * variant.scale * unit);
            out.push_back(std::move(definition));
        }
    }
    return out;
}

std::vector<LinetypeDefinition> LinetypeLibrary::parse(std::string_view text)
{
    std::vector<LinetypeDefinition> out;
    LinetypeDefinition pending;
    bool havePending = false;
    while (!text.empty()) {
        const size_t newline = text.find('\n');
        const std::string_view line = trim(text.substr(0, newline));
        text.remove_prefix(newline == std::string_view::npos ? text.size() : newline + 1);
        if (line.empty() || line.front() == ';')
            continue;
        if (line.front() == '*') {
            const std::string_view header = line.substr(1);
            const size_t comma = header.find(',');
            pending = LinetypeDefinition();
            pending.name = headless::fromUtf8(trim(header.substr(0, comma)));
            if (comma != std::string_view::npos)
                pending.description = headless::fromUtf8(trim(header.substr(comma + 1)));
            havePending = !pending.name.empty();
            continue;
        }
        if (havePending && parsePattern(line, pending.dashes))
            out.push_back(pending);
        havePending = false;  // a pattern line belongs to the header just before it
    }
    return out;
}

Acad::ErrorStatus LinetypeLibrary::definitionsFor(const ACHAR* fileName, std::vector<LinetypeDefinition>& out)
{
    out.clear();
    const std::wstring name = fileName != nullptr ? fileName : L"";
    std::ifstream file;
    if (!name.empty())
        file.open(headless::toUtf8(name), std::ios::binary);
    if (!file.is_open()) {
        // No such file here: the name stands for the host's standard file.
        out = builtIn(isMetricFileName(name));
        return Acad::eOk;
    }
    file.seekg(0, std::ios::end);
    const std::streamoff size = file.tellg();
    if (size < 0 || size > kMaxFileBytes)
        return Acad::eInvalidInput;
    file.seekg(0, std::ios::beg);
    std::string text(static_cast<size_t>(size), '\0');
    file.read(text.data(), size);
    text.resize(static_cast<size_t>(file.gcount()));
    out = parse(text);
    return Acad::eOk;
}

bool LinetypeLibrary::matches(const ACHAR* pattern, const ACHAR* name)
{
    // Greedy matching that returns to the last '*': linear for ordinary patterns and
    // never exponential for hostile ones.
    const ACHAR* star = nullptr;
    const ACHAR* resume = nullptr;
    auto same = [](ACHAR a, ACHAR b) {
        return std::towupper(static_cast<wint_t>(a)) == std::towupper(static_cast<wint_t>(b));
    };
    while (*name != L'\0') {
        if (*pattern == L'*') {
            star = pattern++;
            resume = name;
        } else if (*pattern != L'\0' && (*pattern == L'?' || same(*pattern, *name))) {
            ++pattern;
            ++name;
        } else if (star != nullptr) {
            pattern = star + 1;
            name = ++resume;
        } else {
            return false;
        }
    }
    while (*pattern == L'*')
        ++pattern;
    return *pattern == L'\0';
}

Acad::ErrorStatus LinetypeLibrary::load(AcDbDatabase* db, const ACHAR* pattern, const ACHAR* fileName)
{
    if (db == nullptr || pattern == nullptr || *pattern == L'\0')
        return Acad::eInvalidInput;
    std::vector<LinetypeDefinition> definitions;
    Acad::ErrorStatus es = definitionsFor(fileName, definitions);
    if (es != Acad::eOk)
        return es;
    AcDbLinetypeTable* table = nullptr;
    es = db->getLinetypeTable(table, AcDb::kForWrite);
    if (es != Acad::eOk)
        return es;
    const bool single = !hasWildcard(pattern);
    bool matched = false;
    es = Acad::eOk;
    for (const LinetypeDefinition& definition : definitions) {
        if (!matches(pattern, definition.name.c_str()))
            continue;
        matched = true;
        if (table->has(definition.name.c_str())) {
            if (single)
                es = Acad::eDuplicateRecordName;
            continue;
        }
        auto* record = new AcDbLinetypeTableRecord();
        double length = 0.0;
        for (double dash : definition.dashes)
            length += std::fabs(dash);
        record->setName(definition.name.c_str());
        record->setComments(definition.description.c_str());
        record->setPatternLength(length);
        record->setNumDashes(static_cast<int>(definition.dashes.size()));
        for (size_t i = 0; i < definition.dashes.size(); ++i)
            record->setDashLengthAt(static_cast<int>(i), definition.dashes[i]);
        const Acad::ErrorStatus added = table->add(record);
        if (added == Acad::eOk) {
            record->close();
        } else {
            delete record;
            if (single)
                es = added;
        }
        if (single)
            break;
    }
    table->close();
    if (!matched)
        return Acad::eUndefinedLineType;
    return es;
}

}  // namespace hostdb
