#include "tests/support/LiteralReader.h"

#include <cstdint>
#include <stdexcept>

namespace marlo::test {

namespace {

class LiteralReader {
  public:
    LiteralReader(const std::string& path, const std::string& bytes) : path_(path), bytes_(bytes) {}

    ScanResult Scan() {
        try {
            ScanAll();
        } catch (const std::out_of_range&) {
            result_.completed = false;
        }
        return result_;
    }

  private:
    /// The byte at a 1-based position. Past the end, `eof_` is set.
    char Read(std::int64_t p) {
        if (p < 1)
            throw std::out_of_range("before the start of the file");
        eof_ = p > static_cast<std::int64_t>(bytes_.size());
        return eof_ ? '\0' : bytes_[static_cast<std::size_t>(p - 1)];
    }

    /// `first` and the next three bytes; fewer when the file ends.
    std::string FourFrom(char first) {
        std::string text(1, first);
        for (int i = 0; i < 3; ++i) {
            const char byte = Read(pos_);
            if (eof_)
                break;
            pos_ += 1;
            text += byte;
        }
        return text;
    }

    void ScanAll() {
        pos_ = 1;
        for (;;) {
            const char byte = Read(pos_);
            if (eof_)
                return;
            pos_ += 1;
            if (byte != 'C')
                continue;
            const std::string chunkMagic = FourFrom('C');
            if (eof_)
                return;
            if (chunkMagic != "CcnK")
                continue;
            const char afterSize = Read(pos_ + 4);
            if (eof_)
                return;
            pos_ = pos_ + 5;
            if (afterSize != 'F')
                continue;
            const std::string bankMagic = FourFrom('F');
            if (eof_)
                return;
            if (bankMagic != "FBCh" && bankMagic != "FxBk")
                continue;
            const std::int64_t mark = pos_;
            if (!TakeBank(mark))
                return;
            pos_ = mark;
        }
    }

    /// False when the scan is over.
    bool TakeBank(std::int64_t mark) {
        const char flag = Read(mark - 25);
        if (eof_)
            return false;
        const std::string state = flag == 1 ? "On" : "Off";

        std::int64_t p = mark - 64;
        char byte = 0;
        do {
            byte = Read(p);
            p = p - 1;
            if (p == 0) {
                result_.missingZeros += 1;
                return false;
            }
        } while (byte != 0);
        const std::int64_t z = p + 1;

        const char typeByte = Read(z + 3);
        if (eof_)
            return false;
        const std::string type = typeByte == '1' ? "VST    " : "DirectX";

        std::string name(1, Read(z + 36));
        if (eof_)
            return false;
        if (name[0] == '\0')
            result_.zeroNames += 1;
        for (std::int64_t q = z + 37;; ++q) {
            const char c = Read(q);
            if (eof_) {
                result_.droppedNames += 1;
                return false;
            }
            if (c == '\0')
                break;
            name += c;
        }
        Store(name, type, state);
        return true;
    }

    void Store(const std::string& name, const std::string& type, const std::string& state) {
        const std::string key = "\"" + path_ + "\",\"" + name + "\",\"" + type + "\"";
        result_.occurrences.push_back(key + ",\"" + state + "\"");
        result_.lastRecord = key;
        for (std::size_t i = 0; i < result_.keys.size(); ++i)
            if (result_.keys[i] == key) {
                if (result_.states[i] == "Off" && state == "On")
                    result_.states[i] = "On";
                return;
            }
        result_.keys.push_back(key);
        result_.states.push_back(state);
    }

    const std::string& path_;
    const std::string& bytes_;
    ScanResult result_;
    std::int64_t pos_ = 1;
    bool eof_ = false;
};

}  // namespace

ScanResult ScanLiterally(const std::string& path, const std::string& bytes) {
    return LiteralReader(path, bytes).Scan();
}

}  // namespace marlo::test
