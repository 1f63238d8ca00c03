// The toolkit shares every fill of more than a hundred pieces of rows, each tall
// shape with soft edges among them, between the threads of a pool. The game's
// fills take microseconds; to wake a thread, and to wait for it, takes longer.
// Where there is no pool the toolkit paints by itself, as it does while a program
// ends: so there is none. The program's function stands before the library's;
// linked statically, the linker puts it there (CMakeLists.txt).

#include <QThreadPool>

#ifdef TORVENHALL_STATIC
extern "C" QThreadPool* NoThreadPool() asm("__wrap__ZN11QThreadPool14globalInstanceEv");

extern "C" QThreadPool* NoThreadPool()
{
    return nullptr;
}
#else
QThreadPool* QThreadPool::globalInstance()
{
    return nullptr;
}
#endif
