// What the records of T files may refer to, indexed when first asked for.
#pragma once

#include "keshobjects/numberhash.h"
#include "tdata/JobIndex.h"
#include "tdata/clsTxtParser.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_set>

class CheckReferences {
public:
    /// Files come from the archive. Without `WithGame` there is no game to look into, and nothing
    /// is missing. `WithTexts`: the store holds the language to be checked.
    CheckReferences(bool WithGame, bool WithTexts) : m_withGame(WithGame), m_withTexts(WithTexts) {}

    /// A file of the game by its key ("TBullets"); none if it is not at hand.
    [[nodiscard]] const clsTxtParser* File(std::string_view Key);
    [[nodiscard]] std::int32_t CountOf(std::string_view Key); ///< of records; 0 if not at hand

    [[nodiscard]] bool HasShip(std::string_view ID);
    [[nodiscard]] bool HasWare(std::string_view ID);
    [[nodiscard]] bool HasJobWing(const KeshValue& Number);
    [[nodiscard]] bool HasJob(std::int32_t Number);

    [[nodiscard]] bool WithGame() const noexcept { return m_withGame; }
    [[nodiscard]] bool WithTexts() const noexcept { return m_withTexts; }
    /// A string of page 17.
    [[nodiscard]] bool HasObjectText(std::int32_t Id) const;

private:
    using Names = std::unordered_set<std::string_view>; ///< of records that stay as they are

    bool m_withGame;
    bool m_withTexts;
    std::map<std::string, std::shared_ptr<clsTxtParser>, std::less<>> m_files;
    std::unique_ptr<clsTxtParser> m_merged;
    std::optional<Names> m_wares;
    std::optional<Names> m_ships;
    std::optional<JobIndex> m_wings;
    std::optional<JobIndex> m_jobs;
};
