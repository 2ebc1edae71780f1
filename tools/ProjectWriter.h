#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace marlo::tools {

/// A plug-in slot of a project as Cubase SX stores it.
struct PluginSlot {
    std::string name;
    bool isVst = true;            ///< else DirectX
    std::uint8_t state = 1;       ///< 1 = on
    bool isOpaqueBank = true;     ///< magic "FBCh", else "FxBk"
    std::size_t chunkSize = 256;  ///< bytes of bank data
};

/// A plug-in's descriptor, its state, and its bank with data that varies with `name`.
std::string PluginBytes(const PluginSlot& slot);

/// Builds the bytes of a project file with the layout of real ones: a container header, named
/// nodes, and plug-in slots between stretches of other data.
class ProjectWriter {
  public:
    /// @param seed the same seed and calls give the same bytes.
    explicit ProjectWriter(std::uint32_t seed);

    void AddPlugin(const PluginSlot& slot) { body_ += PluginBytes(slot); }

    /// Adds about `size` bytes of what lies between the plug-ins: zeros, numbers, names of nodes
    /// and files, and dense data, in the proportions of a real project. Holds no bank.
    void AddFiller(std::size_t size);

    std::string Bytes() const;

  private:
    void AddNode(std::string_view name);
    void AddNumbers(std::size_t count);
    void AddDense(std::size_t size);

    std::mt19937 random_;
    std::string body_;
};

}  // namespace marlo::tools
