// A disk that takes three seconds for what a program waits for.

#include <unistd.h>

extern "C" {

__attribute__((visibility("default"))) int fsync(int /*file*/)
{
    sleep(3);
    return 0;
}

__attribute__((visibility("default"))) int fdatasync(int file)
{
    return fsync(file);
}
}
