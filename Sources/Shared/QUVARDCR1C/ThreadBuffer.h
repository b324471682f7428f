#ifndef QUVARDCR1C_THREADBUFFER_H
#define QUVARDCR1C_THREADBUFFER_H

#include <cstddef>

// Returns the wide buffer of the calling thread, with a capacity of at least `size` code units. It is
// valid until the thread's next call. Throws std::bad_alloc.
wchar_t* threadBuffer(std::size_t size);

#endif
