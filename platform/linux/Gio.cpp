#include "platform/linux/Gio.h"

#include <array>
#include <dlfcn.h>
#include <filesystem>
#include <gio/gio.h>
#include <memory>

namespace marlo::platform {

namespace {

/// The functions of GIO that are needed, loaded on the spot.
class Gio {
  public:
    Gio() {
        void* const library = dlopen("libgio-2.0.so.0", RTLD_NOW);
        isLoaded_ = library != nullptr && Find(library, "g_content_type_guess", guessType) &&
                    Find(library, "g_app_info_get_default_for_type", defaultForType) &&
                    Find(library, "g_app_info_get_commandline", commandOf) &&
                    Find(library, "g_shell_parse_argv", parseCommand) &&
                    Find(library, "g_find_program_in_path", findProgram) &&
                    Find(library, "g_filename_to_uri", uriOf) &&
                    Find(library, "g_app_info_launch_default_for_uri", openUri) &&
                    Find(library, "g_spawn_async", start) &&
                    Find(library, "g_object_unref", release) && Find(library, "g_free", free) &&
                    Find(library, "g_strfreev", freeAll);
    }

    bool IsLoaded() const { return isLoaded_; }

    decltype(&g_content_type_guess) guessType = nullptr;
    decltype(&g_app_info_get_default_for_type) defaultForType = nullptr;
    decltype(&g_app_info_get_commandline) commandOf = nullptr;
    decltype(&g_shell_parse_argv) parseCommand = nullptr;
    decltype(&g_find_program_in_path) findProgram = nullptr;
    decltype(&g_filename_to_uri) uriOf = nullptr;
    decltype(&g_app_info_launch_default_for_uri) openUri = nullptr;
    decltype(&g_spawn_async) start = nullptr;
    decltype(&g_object_unref) release = nullptr;
    decltype(&g_free) free = nullptr;
    decltype(&g_strfreev) freeAll = nullptr;

  private:
    template <class Function>
    static bool Find(void* library, const char* name, Function& function) {
        function = reinterpret_cast<Function>(dlsym(library, name));
        return function != nullptr;
    }

    bool isLoaded_ = false;
};

const Gio& LoadedGio() {
    static const Gio gio;
    return gio;
}

using Text = std::unique_ptr<char, decltype(&g_free)>;

/// The full path of the program that a command starts; empty when it is not installed, or is one
/// that only starts another.
std::string ProgramOf(const Gio& gio, const char* command) {
    char** words = nullptr;
    if (command == nullptr || gio.parseCommand(command, nullptr, &words, nullptr) == FALSE)
        return {};
    const std::unique_ptr<char*, decltype(&g_strfreev)> owner(words, gio.freeAll);
    // Those start the program that the rest of their command names.
    const std::filesystem::path name = std::filesystem::path(*words).filename();
    if (name == "env" || name == "flatpak" || name == "snap")
        return {};
    const Text program(gio.findProgram(*words), gio.free);
    return program ? program.get() : std::string();
}

}  // namespace

std::string GioProgramForExtension(const std::string& extension) {
    const Gio& gio = LoadedGio();
    if (!gio.IsLoaded())
        return {};
    const std::string fileName = "file" + extension;
    const Text type(gio.guessType(fileName.c_str(), nullptr, 0, nullptr), gio.free);
    const std::unique_ptr<GAppInfo, decltype(&g_object_unref)> application(
        gio.defaultForType(type.get(), FALSE), gio.release);
    return application ? ProgramOf(gio, gio.commandOf(application.get())) : std::string();
}

bool GioOpen(const std::string& path) {
    const Gio& gio = LoadedGio();
    if (!gio.IsLoaded())
        return false;
    const Text uri(gio.uriOf(path.c_str(), nullptr, nullptr), gio.free);
    return uri && gio.openUri(uri.get(), nullptr, nullptr) != FALSE;
}

bool GioStart(const std::string& program, const std::string& argument) {
    const Gio& gio = LoadedGio();
    std::string programWord = program;
    std::string argumentWord = argument;
    std::array<char*, 3> words = {programWord.data(),
                                  argument.empty() ? nullptr : argumentWord.data(), nullptr};
    return gio.IsLoaded() && gio.start(nullptr, words.data(), nullptr, G_SPAWN_DEFAULT, nullptr,
                                       nullptr, nullptr, nullptr) != FALSE;
}

}  // namespace marlo::platform
