// The host heap. The headless host has one heap, the C library's.
#include <cstdlib>
#include <new>

#include "AcHeapOpers.h"

void* acHeapAlloc(void* /*pHeap*/, std::size_t size)
{
    return std::malloc(size == 0 ? 1 : size);
}

void acHeapFree(void* /*pHeap*/, void* p)
{
    std::free(p);
}

void* AcHeapOperators::operator new(std::size_t size)
{
    if (void* p = acHeapAlloc(nullptr, size))
        return p;
    throw std::bad_alloc();
}

void AcHeapOperators::operator delete(void* p)
{
    if (p != nullptr)
        acHeapFree(nullptr, p);
}

void* AcHeapOperators::operator new[](std::size_t size)
{
    return AcHeapOperators::operator new(size);
}

void AcHeapOperators::operator delete[](void* p)
{
    AcHeapOperators::operator delete(p);
}
