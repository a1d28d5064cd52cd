#include "Heap.h"

#include <malloc.h>

double Heap::heldBytes()
{
    double held = 0;
    _HEAPINFO block{};
    while (_heapwalk(&block) == _HEAPOK) {
        if (block._useflag == _USEDENTRY) {
            held += double(block._size);
        }
    }
    return held;
}

void Heap::keepMemory() {}
