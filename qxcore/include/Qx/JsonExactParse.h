// JsonExactParse: JSON text into a RapidJSON document, its fractional numbers converted by
// the C++ library instead of RapidJSON's full-precision conversion.
#pragma once

#include <charconv>
#include <cstdint>
#include <string>

#include <rapidjson/document.h>
#include <rapidjson/reader.h>

namespace Qx {

struct JsonExactParse {
    // Parses stream, which reads source from its start, into document (replacing it only on
    // success). RapidJSON's full-precision conversion has undefined behaviour on numbers of
    // many digits or large exponents ("0e054", a zero of 500 decimals, a long fraction with
    // a large negative exponent), and its number-as-text hand-over corrupts numbers of wide
    // encodings. So RapidJSON parses with its plain conversion, and every number it reads as
    // a double is read again from the source with std::from_chars: correctly rounded,
    // without locale. Integers are RapidJSON's, which are exact. A magnitude below the
    // smallest double reads as a signed zero; one above the largest is refused at the
    // number's start, as RapidJSON refuses exponents beyond 308.
    template <unsigned Flags, typename Document, typename InputStream>
    static rapidjson::ParseResult Parse(Document& document, InputStream& stream, const typename Document::Ch* source)
    {
        using Encoding = typename Document::EncodingType;
        rapidjson::GenericReader<Encoding, Encoding, rapidjson::CrtAllocator> reader;
        Document parsed(nullptr, kStackCapacity);
        rapidjson::ParseResult result;
        const auto generate = [&](Document& handler) {
            ExactNumbers<Document, InputStream> numbers(handler, stream, source);
            result = reader.template Parse<Flags & ~rapidjson::kParseFullPrecisionFlag>(stream, numbers);
            return !result.IsError();
        };
        parsed.Populate(generate);
        if (!result.IsError())
            document.Swap(parsed);
        return result;
    }

private:
    static constexpr std::size_t kStackCapacity = 1024;

    template <typename Document, typename InputStream>
    class ExactNumbers {
    public:
        using Ch = typename Document::Ch;
        ExactNumbers(Document& to, const InputStream& stream, const Ch* source)
            : m_to(to), m_stream(stream), m_source(source)
        {}

        bool Null() { return m_to.Null(); }
        bool Bool(bool b) { return m_to.Bool(b); }
        bool Int(int i) { return m_to.Int(i); }
        bool Uint(unsigned u) { return m_to.Uint(u); }
        bool Int64(std::int64_t i) { return m_to.Int64(i); }
        bool Uint64(std::uint64_t u) { return m_to.Uint64(u); }
        bool RawNumber(const Ch* s, rapidjson::SizeType n, bool copy) { return m_to.RawNumber(s, n, copy); }
        bool String(const Ch* s, rapidjson::SizeType n, bool copy) { return m_to.String(s, n, copy); }
        bool StartObject() { return m_to.StartObject(); }
        bool Key(const Ch* s, rapidjson::SizeType n, bool copy) { return m_to.Key(s, n, copy); }
        bool EndObject(rapidjson::SizeType members) { return m_to.EndObject(members); }
        bool StartArray() { return m_to.StartArray(); }
        bool EndArray(rapidjson::SizeType elements) { return m_to.EndArray(elements); }

        bool Double(double)
        {
            const std::string text = NumberText();
            const char* first = text.data();
            const char* last = first + text.size();
            double value = 0.0;
            const std::from_chars_result read = std::from_chars(first, last, value);
            if (read.ec == std::errc() && read.ptr == last)
                return m_to.Double(value);
            if (read.ec != std::errc::result_out_of_range || !BelowOne(text))
                return false;
            return m_to.Double(text[0] == '-' ? -0.0 : 0.0);
        }

    private:
        static bool IsDigit(Ch c) { return c >= Ch('0') && c <= Ch('9'); }
        static bool IsNumberUnit(Ch c)
        {
            return IsDigit(c) || c == Ch('-') || c == Ch('+') || c == Ch('.') || c == Ch('e') || c == Ch('E');
        }

        // The number just read, as ASCII. A stream RapidJSON reads through a local copy stands
        // at the number's start until the number is done; any other has passed its end, and
        // before the number stands a separator, a bracket or the start of the text.
        std::string NumberText() const
        {
            const std::size_t at = m_stream.Tell();
            std::size_t begin = at;
            std::size_t end = at;
            if (rapidjson::StreamTraits<InputStream>::copyOptimization) {
                end = GrammarEnd(at);
            } else {
                while (begin > 0 && IsNumberUnit(m_source[begin - 1]))
                    --begin;
            }
            std::string text(end - begin, '\0');
            for (std::size_t i = begin; i < end; ++i)
                text[i - begin] = static_cast<char>(m_source[i]);
            return text;
        }

        // Where the number starting at `from` ends by JSON's grammar (RapidJSON checked it).
        std::size_t GrammarEnd(std::size_t from) const
        {
            std::size_t i = from;
            if (m_source[i] == Ch('-'))
                ++i;
            while (IsDigit(m_source[i]))
                ++i;
            if (m_source[i] == Ch('.')) {
                ++i;
                while (IsDigit(m_source[i]))
                    ++i;
            }
            if (m_source[i] == Ch('e') || m_source[i] == Ch('E')) {
                ++i;
                if (m_source[i] == Ch('+') || m_source[i] == Ch('-'))
                    ++i;
                while (IsDigit(m_source[i]))
                    ++i;
            }
            return i;
        }

        // Whether the number's magnitude is below one (so out of range means too small): the
        // decimal position of its first significant digit plus its exponent.
        static bool BelowOne(const std::string& text)
        {
            std::size_t i = text[0] == '-' ? 1 : 0;
            long long integerDigits = 0;
            bool significant = false;
            for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
                significant = significant || text[i] != '0';
                integerDigits += significant ? 1 : 0;
            }
            long long magnitude = integerDigits - 1;
            if (!significant) {
                long long zeros = 0;
                if (i < text.size() && text[i] == '.')
                    for (++i; i < text.size() && text[i] == '0'; ++i)
                        ++zeros;
                if (i >= text.size() || text[i] < '1' || text[i] > '9')
                    return true;  // all zero
                magnitude = -(zeros + 1);
            }
            const std::size_t e = text.find_first_of("eE");
            if (e != std::string::npos) {
                std::size_t at = e + 1;
                const bool negative = at < text.size() && text[at] == '-';
                if (at < text.size() && (text[at] == '-' || text[at] == '+'))
                    ++at;
                long long exponent = 0;
                for (; at < text.size() && exponent < 100000000; ++at)
                    exponent = exponent * 10 + (text[at] - '0');
                magnitude += negative ? -exponent : exponent;
            }
            return magnitude < 0;
        }

        Document& m_to;
        const InputStream& m_stream;
        const Ch* m_source;
    };
};

}  // namespace Qx
