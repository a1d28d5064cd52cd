// Lets a test that runs under Wine call a program of the system below, such as zbarimg: as NAME.exe
// it runs NAME, with names of files translated, and hands on what it prints and its exit status.
// Wine starts such programs by itself, but neither waits for them nor connects them to pipes.

#include <cstdio>
#include <string>
#include <vector>

#include <windows.h>

namespace {

template <typename Function>
Function wineFunction(const wchar_t* library, const char* name)
{
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(library), name)));
}

/// As the system names the file.
std::string systemName(const std::string& file)
{
    using NameOf = char* (*)(const wchar_t* file);
    static const auto nameOf = wineFunction<NameOf>(L"kernel32", "wine_get_unix_file_name");
    std::wstring wide(file.size() + 1, L'\0');
    MultiByteToWideChar(CP_ACP, 0, file.c_str(), -1, &wide[0], int(wide.size()));
    char* const name = nameOf(wide.c_str());
    const std::string result = name;
    HeapFree(GetProcessHeap(), 0, name);
    return result;
}

std::string argumentOf(const std::string& text)
{
    const bool isFile = text.size() > 2 && text[1] == ':' && (text[2] == '/' || text[2] == '\\');
    return isFile ? systemName(text) : text;
}

/// The program's own name, without folder and ".exe".
std::string nameOf(const std::string& program)
{
    const std::string name = program.substr(program.find_last_of("/\\") + 1);
    return name.substr(0, name.rfind('.'));
}

void handOn(const std::string& file, FILE* output)
{
    if (FILE* const input = std::fopen(file.c_str(), "rb")) {
        for (int letter = std::fgetc(input); letter != EOF; letter = std::fgetc(input)) {
            std::fputc(letter, output);
        }
        std::fclose(input);
    }
    DeleteFileA(file.c_str());
}

std::string temporaryFile()
{
    char folder[MAX_PATH];
    char file[MAX_PATH];
    GetTempPathA(MAX_PATH, folder);
    GetTempFileNameA(folder, "out", 0, file);
    return file;
}

/// Runs the program with that input; returns its status.
int run(const std::vector<std::string>& program, const std::string& input)
{
    using Spawn = int(__cdecl*)(char* const* arguments, int wait);
    static const auto spawn = wineFunction<Spawn>(L"ntdll", "__wine_unix_spawnvp");
    const std::string printed = temporaryFile();
    const std::string complained = temporaryFile();
    std::vector<std::string> command{
        "sh",
        "-c",
        "in=$1 out=$2 err=$3; shift 3; printf %s \"$in\" | \"$@\" >\"$out\" 2>\"$err\"",
        "sh",
        input,
        systemName(printed),
        systemName(complained)};
    command.insert(command.end(), program.begin(), program.end());
    std::vector<char*> arguments;
    for (std::string& argument : command) {
        arguments.push_back(&argument[0]);
    }
    arguments.push_back(nullptr);
    const int status = spawn(arguments.data(), TRUE);
    handOn(printed, stdout);
    handOn(complained, stderr);
    return status;
}

}  // namespace

int main(int argc, char** argv)
{
    std::vector<std::string> program{nameOf(argv[0])};
    for (int i = 1; i < argc; ++i) {
        program.push_back(argumentOf(argv[i]));
    }
    if (program.back() != "-") {
        return run(program, {});
    }
    // Each line of the input is a command of its own.
    int status = 0;
    char line[1024];
    while (status == 0 && std::fgets(line, sizeof line, stdin)) {
        status = run(program, line);
    }
    return status;
}
