#ifndef TESTS_SUPPORT_NEWTHREAD_H
#define TESTS_SUPPORT_NEWTHREAD_H

#include <thread>
#ifndef __APPLE__
#include <sys/syscall.h>
#include <unistd.h>
#endif

// Runs work on a new thread and waits until the system no longer knows the thread. On Linux, join()
// returns a moment earlier. QUVARDCR1C releases the buffer of a thread that the system does not know.
template <typename Work>
void runOnNewThread(const Work& work) {
#ifdef __APPLE__
  std::thread(work).join();
#else
  pid_t id = 0;
  std::thread([&] {
    id = static_cast<pid_t>(syscall(SYS_gettid));
    work();
  }).join();
  while (syscall(SYS_tgkill, getpid(), id, 0) == 0) std::this_thread::yield();
#endif
}

#endif
