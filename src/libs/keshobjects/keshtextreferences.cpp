#include "keshobjects/keshtexthandles.h"
#include "keshobjects/referencegraph.h"

#include <algorithm>
#include <iterator>

namespace keshobjects {
namespace {

/// What a text of an object can refer to, and where the text stands.
struct Surroundings {
    const TextFile* file = nullptr; ///< null in the store
    TextPlace place;
};

std::optional<Surroundings> surroundingsOf(std::int32_t handle) {
    if (handle == KESH_STORE)
        return Surroundings{};
    if (const TextFile* const file = fileOf(handle))
        return Surroundings{file, {}};
    if (const TextPage* const page = pageOf(handle))
        return Surroundings{&page->file, {page->id, {}}};
    if (const TextString* const string = stringOf(handle))
        return Surroundings{&string->page.file, {string->page.id, string->id}};
    if (const StoredPage* const page = storedPageOf(handle))
        return Surroundings{nullptr, {page->id, {}}};
    if (const StoredString* const string = storedStringOf(handle))
        return Surroundings{nullptr, {string->page, string->id}};
    failHandle(handle);
    return std::nullopt;
}

std::vector<std::int32_t> childrenOf(std::int32_t object) {
    std::int32_t count = 0;
    Kesh_EnumObjects(object, nullptr, 0, count);
    std::vector<std::int32_t> children(static_cast<std::size_t>(count));
    Kesh_EnumObjects(object, children.data(), count, count);
    return children;
}

std::vector<std::int32_t> stringsOf(std::int32_t file) {
    std::vector<std::int32_t> strings;
    for (const std::int32_t page : childrenOf(file))
        std::ranges::copy(childrenOf(page), std::back_inserter(strings));
    return strings;
}

std::int32_t findBadReferences(const TextFile* file, const std::vector<std::int32_t>& strings,
                               std::vector<KeshBadReference>& found) {
    ReferenceGraph graph(lookupIn(file));
    std::vector<std::uint32_t> numbers;
    for (const std::int32_t string : strings) {
        const auto text = rawTextOf(string);
        if (!text)
            return failHandle(string);
        const TextPlace place = surroundingsOf(string)->place;
        numbers.push_back(graph.add({*place.page, *place.id}, *text));
    }
    graph.findCircles();
    for (std::size_t i = 0; i < strings.size(); ++i)
        for (const BadReference& bad : graph.badOnes(numbers[i]))
            found.push_back({strings[i], bad.reference.page, bad.reference.id,
                             bad.circle ? KESH_REFERENCE_CIRCLE : KESH_REFERENCE_NOWHERE});
    return 1;
}

} // namespace

TextLookup lookupIn(const TextFile* file) {
    return [file](const Reference& reference) -> std::optional<std::string_view> {
        if (file != nullptr)
            if (const TextString* const string = file->find(reference.page, reference.id))
                return string->text;
        const std::uint32_t found = store().find(reference.page, reference.id);
        return found == TextStore::none ? std::nullopt
                                        : std::optional(store().string(found).text());
    };
}

} // namespace keshobjects

using namespace keshobjects;

std::int32_t Kesh_TRETranslateString(std::int32_t Object, std::string_view Text,
                                     std::string& Translated) {
    return withTexts([&] {
        const auto around = surroundingsOf(Object);
        if (!around)
            return 0;
        Translated = translate(Text, around->place, TextForm::Translated, lookupIn(around->file));
        return 1;
    });
}

std::int32_t Kesh_TREFindBadReferences(std::int32_t Object, std::int32_t String,
                                       std::vector<KeshBadReference>& Found) {
    return withTexts([&] {
        Found.clear();
        const TextFile* const file = fileOf(Object);
        if (file == nullptr && Object != KESH_STORE)
            return failHandle(Object);
        return findBadReferences(file, String == 0 ? stringsOf(Object) : std::vector{String},
                                 Found);
    });
}
