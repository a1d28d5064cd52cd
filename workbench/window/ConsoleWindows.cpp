// The program has no console of its own on Windows, so that a double click opens none. What it
// prints goes to the console that it was started from, unless it is redirected.

#include <QtGlobal>

#include <cstdio>

#include <io.h>
#include <windows.h>

namespace {

void printToCallersConsole()
{
    if (!AttachConsole(ATTACH_PARENT_PROCESS)) {
        return;
    }
    for (FILE* const output : {stdout, stderr}) {
        if (_fileno(output) < 0) {
            freopen("CONOUT$", "w", output);
        }
    }
}

}  // namespace

Q_CONSTRUCTOR_FUNCTION(printToCallersConsole)
