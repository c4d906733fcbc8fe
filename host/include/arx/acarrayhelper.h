// How AcArray moves its items when it grows: plain byte copies for trivially copyable
// items, element-wise moves for everything else. Also the host-error hooks AcArray raises
// through, so that this header stays free of the headless host's own headers.
#pragma once

#include <cstring>
#include <type_traits>
#include <utility>

#include "adesk.h"

// Copies items with memcpy; only valid for trivially copyable items.
template <class T>
class AcArrayMemCopyReallocator {
public:
    static void reallocateArray(T* pDest, T* pSource, int nCount)
    {
        static_assert(std::is_trivially_copyable<T>::value,
                      "AcArrayMemCopyReallocator needs trivially copyable items");
        if (nCount > 0)
            std::memcpy(static_cast<void*>(pDest), static_cast<const void*>(pSource), sizeof(T) * nCount);
    }
};

// Moves items one by one with their own assignment.
template <class T>
class AcArrayObjectCopyReallocator {
public:
    static void reallocateArray(T* pDest, T* pSource, int nCount)
    {
        for (int i = 0; i < nCount; ++i)
            pDest[i] = std::move(pSource[i]);
    }
};

template <class T, bool isTriviallyCopyable>
struct AcArrayItemCopierSelector;

template <class T>
struct AcArrayItemCopierSelector<T, false> {
    using allocator = AcArrayObjectCopyReallocator<T>;
};

template <class T>
struct AcArrayItemCopierSelector<T, true> {
    using allocator = AcArrayMemCopyReallocator<T>;
};

namespace AcArrayDetail {

// Raise the host error naming the AcArray member that was misused.
[[noreturn]] ACHOST_API void raiseIndexError(const ACHAR* call, int index, int length);
[[noreturn]] ACHOST_API void raiseEmptyError(const ACHAR* call);
[[noreturn]] ACHOST_API void raiseLengthError(const ACHAR* call, long long requested);

}  // namespace AcArrayDetail
