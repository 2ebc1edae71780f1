#include "scan/ProjectPlugins.h"

#include <string_view>

#include "core/ErrorLog.h"
#include "core/LineReader.h"
#include "core/Records.h"
#include "core/RunTimeError.h"
#include "scan/BankFinder.h"
#include "scan/BlockReader.h"

namespace marlo {

namespace {

// Seven characters either way, so that the state starts in the same place behind the name.
constexpr std::string_view kVst = "VST    ";
constexpr std::string_view kDirectX = "DirectX";

static_assert(kMaxRecordText < kMaxLineLength, "every record that is written can be read again");

/// Makes the records of one project and puts them into the lists.
class RecordCollector {
  public:
    /// @param lastRecord receives each record built, of either kind.
    RecordCollector(SearchLists& lists, const std::string& path, std::string& lastRecord)
        : lists_(lists), path_(path), lastRecord_(lastRecord) {}

    void Add(BlockReader& reader, const Bank& bank) {
        const std::string_view type = bank.isVst ? kVst : kDirectX;
        const std::string_view state = bank.isOn ? kOn : kOff;
        // The name may be longer than memory, so its records are accounted for before it is read.
        const auto nameLength = static_cast<std::size_t>(bank.nameEnd - bank.nameStart);
        const std::size_t keyLength =
            path_.size() + nameLength + type.size() + std::string_view(R"("","","")").size();
        const std::size_t stateLength = state.size() + std::string_view(R"(,"")").size();
        Account(keyLength + stateLength);

        lastRecord_ = QuotedFields({path_, reader.Text(bank.nameStart, bank.nameEnd), type});
        const PluginState plugin = MergeState(lists_.ProjectPluginKeys, lists_.ProjectPluginStates,
                                              lastRecord_, state, [&] { Account(keyLength); });
        lists_.PluginOccurrences.push_back({plugin.key, state});
    }

  private:
    void Account(std::size_t length) {
        if (length > left_ || length > lists_.recordTextLeft)
            throw RunTimeError(ErrorNumber::OutOfMemory);
        left_ -= length;
        lists_.recordTextLeft -= length;
    }

    SearchLists& lists_;
    const std::string& path_;
    std::string& lastRecord_;
    std::size_t left_ = kMaxRecordText;
};

}  // namespace

bool GetPlugins4Project(const Application& application, SearchLists& lists,
                        const std::string& path) {
    std::string lastRecord;
    const auto procedure = [&] { return "GetPlugins4Project " + path + " " + lastRecord; };
    return RunGuarded(application, procedure, [&] {
        BlockReader reader(path);
        BankFinder banks(reader);
        RecordCollector collector(lists, path, lastRecord);
        while (const auto bank = banks.Next())
            collector.Add(reader, *bank);
    });
}

}  // namespace marlo
