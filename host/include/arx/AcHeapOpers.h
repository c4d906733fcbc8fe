// The host heap: allocations that module objects make so that the host can free them.
#pragma once

#include <cstddef>

#include "adesk.h"

// pHeap null selects the host's default heap. Returns null when the request cannot be met.
// Signatures UNCONFIRMED; these match how modules call them (acHeapAlloc(nullptr, size)).
ACHOST_API void* acHeapAlloc(void* pHeap, std::size_t size);
ACHOST_API void acHeapFree(void* pHeap, void* p);

// Base class giving a class host-heap operators new and delete.
class ACHOST_API AcHeapOperators {
public:
    static void* operator new(std::size_t size);
    static void operator delete(void* p);
    static void* operator new[](std::size_t size);
    static void operator delete[](void* p);
};
