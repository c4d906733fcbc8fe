// The host heap. The headless host has one heap, the C library's, and counts the blocks it
// hands out and takes back so that tests can tell host-heap objects from others.
#include <cstdlib>
#include <new>

#include "AcHeapOpers.h"
#include "headless/HostHeap.h"

namespace {

// Plain counters: the host runs on one thread, and a count must cost no more than an add.
headless::HostHeapCounts g_counts;

}  // namespace

void* acHeapAlloc(void* /*pHeap*/, std::size_t size)
{
    void* p = std::malloc(size == 0 ? 1 : size);
    if (p != nullptr)
        ++g_counts.allocations;
    return p;
}

void acHeapFree(void* /*pHeap*/, void* p)
{
    if (p != nullptr)
        ++g_counts.frees;
    std::free(p);
}

headless::HostHeapCounts headless::hostHeapCounts()
{
    return g_counts;
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
