// JsonNumberUtil: JSON number text made safe for RapidJSON's full-precision parser.
#pragma once

#include <cstddef>
#include <string>

namespace Qx {

struct JsonNumberUtil {
    // RapidJSON's full-precision conversion normalises a zero significand with a count of
    // leading zeros of 0, which is undefined ("0e99" and a zero with more than 22 decimals
    // reach it). A double whose digits are all zero is exactly zero, so such numbers of four
    // characters or more are written as "0.0" (or "-0.0") padded with spaces: the value, its
    // type (a double) and the offsets of every later character, and so of any parse error,
    // stay as they were. Text in strings and text that is not a number by JSON's grammar
    // are left alone.
    template <typename Ch>
    static void ZeroNumbersAsPlainZero(std::basic_string<Ch>& text)
    {
        std::size_t at = 0;
        std::size_t end = 0;
        while (NextZeroDouble(text.data(), text.size(), at, end)) {
            if (text[at] == Ch('-'))
                ++at;
            text[at++] = Ch('0');
            text[at++] = Ch('.');
            text[at++] = Ch('0');
            while (at < end)
                text[at++] = Ch(' ');
        }
    }

    // Whether the text holds such a number: nearly no text does, and it is then parsed as
    // it stands, without a copy.
    template <typename Ch>
    static bool HasZeroDouble(const Ch* text, std::size_t size)
    {
        std::size_t at = 0;
        std::size_t end = 0;
        return NextZeroDouble(text, size, at, end);
    }

private:
    template <typename Ch>
    static bool IsDigit(Ch c)
    {
        return c >= Ch('0') && c <= Ch('9');
    }

    template <typename Ch>
    static bool IsNumberCharacter(Ch c)
    {
        return IsDigit(c) || c == Ch('-') || c == Ch('+') || c == Ch('.') || c == Ch('e') || c == Ch('E');
    }

    // From `at`, the next all-zero double outside strings: true with [at, end) its text.
    template <typename Ch>
    static bool NextZeroDouble(const Ch* text, std::size_t n, std::size_t& at, std::size_t& end)
    {
        std::size_t i = at;
        while (i < n) {
            const Ch c = text[i];
            if (c == Ch('"')) {
                ++i;
                while (i < n && text[i] != Ch('"'))
                    i += text[i] == Ch('\\') ? 2 : 1;
                ++i;
                continue;
            }
            if (c != Ch('-') && !IsDigit(c)) {
                ++i;
                continue;
            }
            const std::size_t found = ZeroDoubleEnd(text, n, i);
            const std::size_t digitsFrom = text[i] == Ch('-') ? i + 1 : i;
            // Four characters at least, so that "0.0" leaves a space: the zero must not run
            // into what follows it ("0e0e54" would become "0.0e54"). Shorter zeros never
            // reach the conversion: it needs an exponent of two digits or 23 decimals.
            if (found != 0 && found - digitsFrom >= 4) {
                at = i;
                end = found;
                return true;
            }
            // Not such a number: skip its characters, so that a digit within it is not
            // taken for the start of another.
            const std::size_t start = i;
            while (i < n && IsNumberCharacter(text[i]))
                ++i;
            if (i == start)
                ++i;
        }
        return false;
    }

    // The end of the number starting at `from` when it is one by JSON's grammar, its digits
    // are all zero and it has a fraction or an exponent (a double); zero otherwise.
    template <typename Ch>
    static std::size_t ZeroDoubleEnd(const Ch* text, std::size_t n, std::size_t from)
    {
        std::size_t i = from;
        if (i < n && text[i] == Ch('-'))
            ++i;
        if (i >= n || text[i] != Ch('0'))
            return 0;  // a leading digit other than zero: not all zero
        ++i;
        bool isDouble = false;
        if (i < n && text[i] == Ch('.')) {
            ++i;
            const std::size_t digits = i;
            while (i < n && text[i] == Ch('0'))
                ++i;
            if (i == digits || (i < n && IsDigit(text[i])))
                return 0;
            isDouble = true;
        }
        if (i < n && (text[i] == Ch('e') || text[i] == Ch('E'))) {
            ++i;
            if (i < n && (text[i] == Ch('+') || text[i] == Ch('-')))
                ++i;
            const std::size_t digits = i;
            while (i < n && IsDigit(text[i]))
                ++i;
            if (i == digits)
                return 0;
            isDouble = true;
        }
        return isDouble ? i : 0;
    }
};

}  // namespace Qx
