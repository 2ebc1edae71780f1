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
                    Find(library, "g_app_info_get_all", all) &&
                    Find(library, "g_app_info_get_icon", iconOf) &&
                    Find(library, "g_themed_icon_get_type", themedIconType) &&
                    Find(library, "g_themed_icon_get_names", iconNames) &&
                    Find(library, "g_type_check_instance_is_a", isA) &&
                    Find(library, "g_icon_to_string", iconText) &&
                    Find(library, "g_list_free_full", freeList) &&
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
    decltype(&g_app_info_get_all) all = nullptr;
    decltype(&g_app_info_get_icon) iconOf = nullptr;
    decltype(&g_themed_icon_get_type) themedIconType = nullptr;
    decltype(&g_themed_icon_get_names) iconNames = nullptr;
    decltype(&g_type_check_instance_is_a) isA = nullptr;
    decltype(&g_icon_to_string) iconText = nullptr;
    decltype(&g_list_free_full) freeList = nullptr;
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

std::string NameOf(const Gio& gio, GIcon* icon) {
    if (icon == nullptr)
        return {};
    // One that the theme draws may have several names, the best one first.
    void* const instance = icon;
    if (gio.isA(static_cast<GTypeInstance*>(instance), gio.themedIconType()) != FALSE) {
        const char* const* const names = gio.iconNames(static_cast<GThemedIcon*>(instance));
        return names == nullptr || *names == nullptr ? "" : *names;
    }
    const Text text(gio.iconText(icon), gio.free);
    return text ? text.get() : "";
}

/// Looks through all the programs that the desktop knows.
std::string FindIconOfProgram(const Gio& gio, const std::string& path) {
    GList* const applications = gio.all();
    std::string icon;
    for (const GList* entry = applications; entry != nullptr && icon.empty(); entry = entry->next) {
        auto* const application = static_cast<GAppInfo*>(entry->data);
        if (ProgramOf(gio, gio.commandOf(application)) == path)
            icon = NameOf(gio, gio.iconOf(application));
    }
    gio.freeList(applications, gio.release);
    return icon;
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

std::string GioIconOfProgram(const std::string& path) {
    // Windows ask for the same one several times in a row.
    static std::string lastPath;
    static std::string lastIcon;
    const Gio& gio = LoadedGio();
    if (gio.IsLoaded() && path != lastPath) {
        lastIcon = FindIconOfProgram(gio, path);
        lastPath = path;
    }
    return lastIcon;
}

bool GioOpen(const std::string& path) {
    const Gio& gio = LoadedGio();
    if (!gio.IsLoaded())
        return false;
    const Text uri(gio.uriOf(path.c_str(), nullptr, nullptr), gio.free);
    return uri && GioOpenAddress(uri.get());
}

bool GioOpenAddress(const std::string& address) {
    const Gio& gio = LoadedGio();
    return gio.IsLoaded() && gio.openUri(address.c_str(), nullptr, nullptr) != FALSE;
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
