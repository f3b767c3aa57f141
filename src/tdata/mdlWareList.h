// All wares that the game can trade, in one list.
#pragma once

#include "tdata/clsTxtParser.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

/// The files that BuildWareList merges, in its order.
std::span<const std::string_view> MergedWareFiles();
/// A new container of copies of all records of the ware files, shields, missiles and lasers, keyed
/// from 1 in the order in which ware lists and jobs count them. A file that cannot be had is
/// skipped.
[[nodiscard]] std::unique_ptr<clsTxtParser> BuildWareList();
/// The name of the ware with that ID in the user's language; the ID itself if there is none.
[[nodiscard]] std::string GetWareName(const clsTxtParser& Parser, const std::string& ID);

/// GetWareName for many IDs: finds each at once, however many wares there are.
class WareNames {
public:
    explicit WareNames(std::unique_ptr<const clsTxtParser> Wares);
    [[nodiscard]] std::string Name(std::string_view ID) const;

private:
    std::unique_ptr<const clsTxtParser> m_wares;
    std::unordered_map<std::string_view, const clsTXTObject*> m_byName; ///< the first of each
};
