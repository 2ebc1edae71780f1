#include "inventory/FileAssociation.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "core/ErrorLog.h"
#include "core/Settings.h"
#include "inventory/ReadRegistry.h"
#include "platform/Ascii.h"

namespace marlo {

namespace {

std::string DefaultValue(const Application& application, const std::string& key,
                         std::int32_t& type) {
    return TextOf(GetRegistryValue(application, platform::kClassesRoot, key, "", type));
}

/// Replaces the first variable, "%NAME%", and what is in front of it, by the variable's value.
/// @return nothing when there is none.
std::optional<std::string> ExpandFirstVariable(const std::string& command) {
    const std::size_t start = command.find('%');
    const std::size_t end = start == std::string::npos ? start : command.find('%', start + 1);
    if (end == std::string::npos)
        return std::nullopt;
    const std::string name = command.substr(start + 1, end - start - 1);
    const char* const value = std::getenv(name.c_str());
    return (value == nullptr ? "" : value) + command.substr(end + 1);
}

/// The program of a command, without the arguments behind it.
std::string ProgramIn(const std::string& command) {
    constexpr std::string_view ending = ".EXE";
    const std::size_t found = platform::UpperAscii(command).find(ending);
    std::string program = command.substr(0, found == std::string::npos ? 3 : found + ending.size());
    program.erase(std::remove(program.begin(), program.end(), '"'), program.end());
    return program;
}

/// @return nothing when there is no association.
std::optional<std::string> ProgramInRegistry(const Application& application,
                                             const std::string& extension) {
    std::int32_t type = 0;
    const std::string fileType = DefaultValue(application, extension, type);
    if (fileType.empty())
        return std::nullopt;
    type = 0;
    std::optional<std::string> command =
        DefaultValue(application, fileType + "\\shell\\open\\command", type);
    if (command->empty())
        return std::nullopt;
    if (type == platform::registry_type::kExpandString)
        command = ExpandFirstVariable(*command);
    return command ? std::optional(ProgramIn(*command)) : std::nullopt;
}

}  // namespace

std::string GetAssociatedApp(const Application& application, const std::string& extension) {
    std::optional<std::string> program;
    const std::string procedure = "GetAssociatedApp: " + extension;
    const bool completed = RunGuarded(application, procedure, [&] {
        program = application.desktop.ProgramForExtension(extension);
        if (!program)
            program = ProgramInRegistry(application, extension);
        else if (program->empty())
            program.reset();
    });
    if (completed && !program)
        WriteErrorLog(application, procedure, 0, "");
    return program.value_or("");
}

void FillInCsvProgram(const Application& application) {
    if (!getSetting(application, setting::kCsvProgram).empty())
        return;
    const std::string program = GetAssociatedApp(application, ".csv");
    if (!program.empty())
        WriteSetting(application, setting::kCsvProgram, program);
}

}  // namespace marlo
