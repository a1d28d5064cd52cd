// Windows says that a library was not found, but not which one.

#include "MissingLibrary.h"

#include <QDir>
#include <QLibrary>

#include <windows.h>

#include <dbghelp.h>

QString CanvasHost::missingLibrary(const QString& file)
{
    const QString name = QDir::toNativeSeparators(file);
    HMODULE const module = LoadLibraryExW(reinterpret_cast<const wchar_t*>(name.utf16()), nullptr,
                                          DONT_RESOLVE_DLL_REFERENCES);
    if (!module) {
        return {};
    }
    ULONG size = 0;
    const auto* needed = static_cast<const IMAGE_IMPORT_DESCRIPTOR*>(
        ImageDirectoryEntryToData(module, TRUE, IMAGE_DIRECTORY_ENTRY_IMPORT, &size));
    const auto* const start = reinterpret_cast<const char*>(module);
    QString missing;
    for (; needed && needed->Name != 0 && missing.isEmpty(); ++needed) {
        QLibrary library(QString::fromLatin1(start + needed->Name));
        if (library.load()) {
            library.unload();
        } else {
            missing = library.fileName();
        }
    }
    FreeLibrary(module);
    return missing;
}
