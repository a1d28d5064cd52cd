#pragma once

/// The C library's heap.
namespace Heap {

/// How many bytes are allocated at this moment.
double heldBytes();

/// Memory that was allocated once is kept, as in a host that runs for long: what the kernel does to
/// hand out empty pages again is then not measured. Where the heap does so anyway, nothing happens.
void keepMemory();

}  // namespace Heap
