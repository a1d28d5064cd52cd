#include "Heap.h"

#include <limits>

#include <malloc.h>

double Heap::heldBytes()
{
    const auto heap = mallinfo2();
    return double(heap.uordblks) + double(heap.hblkhd);
}

void Heap::keepMemory()
{
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_MAX, 0);
}
