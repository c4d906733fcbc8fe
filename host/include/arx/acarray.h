// AcArray: the host's growable array with value semantics, indexed by int. The logical
// length counts the items in use; the physical length is the storage behind them. An
// index outside the items in use raises the host error naming the call.
#pragma once

#include <algorithm>
#include <climits>
#include <memory>
#include <ostream>
#include <type_traits>
#include <utility>

#include "acarrayhelper.h"

template <class T,
          class R = typename AcArrayItemCopierSelector<T, std::is_trivially_copyable<T>::value>::allocator>
class AcArray {
public:
    using value_type = T;
    using iterator = T*;
    using const_iterator = const T*;

    // Storage for initPhysicalLength items, none in use; growth adds at least initGrowLength.
    AcArray(int initPhysicalLength = 0, int initGrowLength = 8);
    AcArray(const AcArray& src);
    AcArray(AcArray&& src) noexcept;
    ~AcArray();
    AcArray& operator=(const AcArray& src);
    AcArray& operator=(AcArray&& src) noexcept;
    // Same length and equal items, in order.
    bool operator==(const AcArray& other) const;

    T& operator[](int index) { checkIndex(L"AcArray::operator[]", index); return mpArray[index]; }
    const T& operator[](int index) const { checkIndex(L"AcArray::operator[]", index); return mpArray[index]; }
    T& at(int index) { checkIndex(L"AcArray::at", index); return mpArray[index]; }
    const T& at(int index) const { checkIndex(L"AcArray::at", index); return mpArray[index]; }
    AcArray& setAt(int index, const T& value);
    AcArray& setAll(const T& value);
    T& first() { checkNotEmpty(L"AcArray::first"); return mpArray[0]; }
    const T& first() const { checkNotEmpty(L"AcArray::first"); return mpArray[0]; }
    T& last() { checkNotEmpty(L"AcArray::last"); return mpArray[mLogicalLen - 1]; }
    const T& last() const { checkNotEmpty(L"AcArray::last"); return mpArray[mLogicalLen - 1]; }

    // Appends and answers the new item's index.
    int append(const T& value);
    int append(T&& value);
    AcArray& append(const AcArray& array);
    // index may equal length() (the same as append).
    AcArray& insertAt(int index, const T& value);
    AcArray& insertAt(int index, T&& value);

    AcArray& removeAt(int index);
    // Removes the first item equal to value at or after start; false when there is none.
    bool remove(const T& value, int start = 0);
    AcArray& removeFirst();
    AcArray& removeLast();
    // Keeps the storage.
    AcArray& removeAll();
    // Removes the items startIndex through endIndex, both included.
    AcArray& removeSubArray(int startIndex, int endIndex);

    bool contains(const T& value, int start = 0) const { return findFrom(value, start) >= 0; }
    bool find(const T& value, int& foundAt, int start = 0) const;
    // The index of the first equal item, or -1.
    int find(const T& value) const { return findFrom(value, 0); }
    int findFrom(const T& value, int start) const;

    int length() const { return mLogicalLen; }
    bool isEmpty() const { return mLogicalLen == 0; }
    int logicalLength() const { return mLogicalLen; }
    // Items added by growing are default values; growing past the storage grows it to exactly n.
    AcArray& setLogicalLength(int n);
    int physicalLength() const { return mPhysicalLen; }
    // Shrinking below the logical length drops the items beyond.
    AcArray& setPhysicalLength(int n);
    int growLength() const { return mGrowLen; }
    AcArray& setGrowLength(int n);

    AcArray& reverse();
    AcArray& swap(int i1, int i2);
    bool isValid(int index) const { return index >= 0 && index < mLogicalLen; }

    const T* asArrayPtr() const { return mpArray; }
    T* asArrayPtr() { return mpArray; }
    T* begin() { return mpArray; }
    T* end() { return mpArray + mLogicalLen; }
    const T* begin() const { return mpArray; }
    const T* end() const { return mpArray + mLogicalLen; }

private:
    void checkIndex(const ACHAR* call, int index) const
    {
        if (index < 0 || index >= mLogicalLen)
            AcArrayDetail::raiseIndexError(call, index, mLogicalLen);
    }
    void checkNotEmpty(const ACHAR* call) const
    {
        if (mLogicalLen == 0)
            AcArrayDetail::raiseEmptyError(call);
    }
    void growFor(const ACHAR* call, long long needed);
    void reallocate(int newPhysical);
    void discardFrom(int newLogical);

    // Every slot beyond the logical length holds a default value, so that removed items
    // release what they own at once and regrown items start out default.
    T* mpArray = nullptr;
    int mPhysicalLen = 0;
    int mLogicalLen = 0;
    int mGrowLen = 8;
};

template <class T, class R>
AcArray<T, R>::AcArray(int initPhysicalLength, int initGrowLength)
{
    if (initPhysicalLength < 0)
        AcArrayDetail::raiseLengthError(L"AcArray::AcArray", initPhysicalLength);
    if (initGrowLength <= 0)
        AcArrayDetail::raiseLengthError(L"AcArray::AcArray", initGrowLength);
    mGrowLen = initGrowLength;
    reallocate(initPhysicalLength);
}

template <class T, class R>
AcArray<T, R>::AcArray(const AcArray& src) : mGrowLen(src.mGrowLen)
{
    reallocate(src.mPhysicalLen);
    std::copy(src.mpArray, src.mpArray + src.mLogicalLen, mpArray);
    mLogicalLen = src.mLogicalLen;
}

template <class T, class R>
AcArray<T, R>::AcArray(AcArray&& src) noexcept
    : mpArray(src.mpArray), mPhysicalLen(src.mPhysicalLen), mLogicalLen(src.mLogicalLen), mGrowLen(src.mGrowLen)
{
    src.mpArray = nullptr;
    src.mPhysicalLen = 0;
    src.mLogicalLen = 0;
}

template <class T, class R>
AcArray<T, R>::~AcArray()
{
    delete[] mpArray;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::operator=(const AcArray& src)
{
    if (this == &src)
        return *this;
    discardFrom(0);
    if (mPhysicalLen < src.mLogicalLen)
        reallocate(src.mPhysicalLen);
    std::copy(src.mpArray, src.mpArray + src.mLogicalLen, mpArray);
    mLogicalLen = src.mLogicalLen;
    mGrowLen = src.mGrowLen;
    return *this;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::operator=(AcArray&& src) noexcept
{
    if (this == &src)
        return *this;
    delete[] mpArray;
    mpArray = src.mpArray;
    mPhysicalLen = src.mPhysicalLen;
    mLogicalLen = src.mLogicalLen;
    mGrowLen = src.mGrowLen;
    src.mpArray = nullptr;
    src.mPhysicalLen = 0;
    src.mLogicalLen = 0;
    return *this;
}

template <class T, class R>
bool AcArray<T, R>::operator==(const AcArray& other) const
{
    if (mLogicalLen != other.mLogicalLen)
        return false;
    for (int i = 0; i < mLogicalLen; ++i) {
        if (!(mpArray[i] == other.mpArray[i]))
            return false;
    }
    return true;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::setAt(int index, const T& value)
{
    checkIndex(L"AcArray::setAt", index);
    mpArray[index] = value;
    return *this;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::setAll(const T& value)
{
    const T copy(value);
    std::fill(mpArray, mpArray + mLogicalLen, copy);
    return *this;
}

template <class T, class R>
int AcArray<T, R>::append(const T& value)
{
    // The value may be one of our own items, which growing would move away.
    T copy(value);
    return append(std::move(copy));
}

template <class T, class R>
int AcArray<T, R>::append(T&& value)
{
    if (mLogicalLen == mPhysicalLen) {
        T moved(std::move(value));
        growFor(L"AcArray::append", static_cast<long long>(mLogicalLen) + 1);
        mpArray[mLogicalLen] = std::move(moved);
    } else {
        mpArray[mLogicalLen] = std::move(value);
    }
    return mLogicalLen++;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::append(const AcArray& array)
{
    // Read through array's own members after growing: it may be this array.
    const int count = array.mLogicalLen;
    growFor(L"AcArray::append", static_cast<long long>(mLogicalLen) + count);
    for (int i = 0; i < count; ++i)
        mpArray[mLogicalLen + i] = array.mpArray[i];
    mLogicalLen += count;
    return *this;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::insertAt(int index, const T& value)
{
    T copy(value);
    return insertAt(index, std::move(copy));
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::insertAt(int index, T&& value)
{
    if (index < 0 || index > mLogicalLen)
        AcArrayDetail::raiseIndexError(L"AcArray::insertAt", index, mLogicalLen);
    T moved(std::move(value));
    growFor(L"AcArray::insertAt", static_cast<long long>(mLogicalLen) + 1);
    std::move_backward(mpArray + index, mpArray + mLogicalLen, mpArray + mLogicalLen + 1);
    mpArray[index] = std::move(moved);
    ++mLogicalLen;
    return *this;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::removeAt(int index)
{
    checkIndex(L"AcArray::removeAt", index);
    std::move(mpArray + index + 1, mpArray + mLogicalLen, mpArray + index);
    discardFrom(mLogicalLen - 1);
    return *this;
}

template <class T, class R>
bool AcArray<T, R>::remove(const T& value, int start)
{
    const int index = findFrom(value, start);
    if (index < 0)
        return false;
    removeAt(index);
    return true;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::removeFirst()
{
    checkNotEmpty(L"AcArray::removeFirst");
    return removeAt(0);
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::removeLast()
{
    checkNotEmpty(L"AcArray::removeLast");
    discardFrom(mLogicalLen - 1);
    return *this;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::removeAll()
{
    discardFrom(0);
    return *this;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::removeSubArray(int startIndex, int endIndex)
{
    checkIndex(L"AcArray::removeSubArray", startIndex);
    checkIndex(L"AcArray::removeSubArray", endIndex);
    if (endIndex < startIndex)
        AcArrayDetail::raiseIndexError(L"AcArray::removeSubArray", endIndex, mLogicalLen);
    std::move(mpArray + endIndex + 1, mpArray + mLogicalLen, mpArray + startIndex);
    discardFrom(mLogicalLen - (endIndex - startIndex + 1));
    return *this;
}

template <class T, class R>
bool AcArray<T, R>::find(const T& value, int& foundAt, int start) const
{
    const int index = findFrom(value, start);
    if (index < 0)
        return false;
    foundAt = index;
    return true;
}

template <class T, class R>
int AcArray<T, R>::findFrom(const T& value, int start) const
{
    if (start < 0)
        AcArrayDetail::raiseIndexError(L"AcArray::find", start, mLogicalLen);
    for (int i = start; i < mLogicalLen; ++i) {
        if (mpArray[i] == value)
            return i;
    }
    return -1;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::setLogicalLength(int n)
{
    if (n < 0)
        AcArrayDetail::raiseLengthError(L"AcArray::setLogicalLength", n);
    if (n > mPhysicalLen)
        reallocate(n);
    if (n < mLogicalLen)
        discardFrom(n);
    else
        mLogicalLen = n;
    return *this;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::setPhysicalLength(int n)
{
    if (n < 0)
        AcArrayDetail::raiseLengthError(L"AcArray::setPhysicalLength", n);
    if (n != mPhysicalLen)
        reallocate(n);
    return *this;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::setGrowLength(int n)
{
    if (n <= 0)
        AcArrayDetail::raiseLengthError(L"AcArray::setGrowLength", n);
    mGrowLen = n;
    return *this;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::reverse()
{
    std::reverse(mpArray, mpArray + mLogicalLen);
    return *this;
}

template <class T, class R>
AcArray<T, R>& AcArray<T, R>::swap(int i1, int i2)
{
    checkIndex(L"AcArray::swap", i1);
    checkIndex(L"AcArray::swap", i2);
    using std::swap;
    swap(mpArray[i1], mpArray[i2]);
    return *this;
}

template <class T, class R>
void AcArray<T, R>::growFor(const ACHAR* call, long long needed)
{
    if (needed <= mPhysicalLen)
        return;
    if (needed > INT_MAX)
        AcArrayDetail::raiseLengthError(call, needed);
    // Growing by half the storage at least keeps a run of appends linear overall.
    long long proposed = static_cast<long long>(mPhysicalLen) + std::max(mGrowLen, mPhysicalLen / 2);
    proposed = std::min<long long>(std::max(proposed, needed), INT_MAX);
    reallocate(static_cast<int>(proposed));
}

template <class T, class R>
void AcArray<T, R>::reallocate(int newPhysical)
{
    std::unique_ptr<T[]> fresh(newPhysical > 0 ? new T[newPhysical]() : nullptr);
    const int kept = std::min(mLogicalLen, newPhysical);
    if (fresh != nullptr && mpArray != nullptr)
        R::reallocateArray(fresh.get(), mpArray, kept);
    delete[] mpArray;
    mpArray = fresh.release();
    mPhysicalLen = newPhysical;
    mLogicalLen = kept;
}

template <class T, class R>
void AcArray<T, R>::discardFrom(int newLogical)
{
    std::fill(mpArray + newLogical, mpArray + mLogicalLen, T());
    mLogicalLen = newLogical;
}

// Prints the items in braces, comma separated, for test output.
template <class T, class R>
std::ostream& operator<<(std::ostream& os, const AcArray<T, R>& array)
{
    os << '{';
    for (int i = 0; i < array.length(); ++i)
        os << (i == 0 ? "" : ", ") << array[i];
    return os << '}';
}
