#include "keshobjects/keshtexts.h"

#include "keshobjects/encodings.h"
#include "keshobjects/errors.h"
#include "keshobjects/referencegraph.h"
#include "keshobjects/textfile.h"
#include "keshobjects/textstore.h"
#include "keshobjects/xmltext.h"
#include "lornfd/lornfd.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

namespace keshobjects {
namespace {

TextStore theStore; // at namespace scope, since a lookup is quicker than the check of a local one

TextStore& store() noexcept {
    return theStore;
}

std::vector<std::unique_ptr<TextFile>>& files() {
    static std::vector<std::unique_ptr<TextFile>> open;
    return open;
}

std::int32_t failHandle(std::int32_t handle) {
    return lastError().set(KESH_E_HANDLE, {{}, {}, std::to_string(handle)});
}

std::int32_t failDriver(KeshObjectsError code) {
    return lastError().set(code, {{}, {}, driverReason()});
}

// --- From handles to objects

template <typename Object>
Object* objectOf(std::int32_t handle, std::int32_t kind) noexcept {
    TextObject* const object = TextObject::find(handle);
    return object != nullptr && object->kind() == kind ? static_cast<Object*>(object) : nullptr;
}
TextFile* fileOf(std::int32_t handle) noexcept {
    return objectOf<TextFile>(handle, KESH_TEXT_FILE);
}
TextPage* pageOf(std::int32_t handle) noexcept {
    return objectOf<TextPage>(handle, KESH_TEXT_PAGE);
}
TextString* stringOf(std::int32_t handle) noexcept {
    return objectOf<TextString>(handle, KESH_TEXT_STRING);
}

const StoredPage* storedPageOf(std::int32_t handle) noexcept {
    const std::uint32_t position = static_cast<std::uint32_t>(handle) - storePageBase;
    return position < store().pages().size() ? &store().pages()[position] : nullptr;
}
const StoredString* storedStringOf(std::int32_t handle) noexcept {
    const std::uint32_t position = static_cast<std::uint32_t>(handle) - storeStringBase;
    return position < store().size() ? &store().string(position) : nullptr;
}
std::int32_t storedHandle(std::uint32_t base, std::uint32_t position) noexcept {
    return static_cast<std::int32_t>(base + position);
}

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

/// Looks into the file, if there is one, then into the store.
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

// --- Loading

std::int32_t loadFile(std::string_view bytes, std::string_view name) {
    auto file = TextFile::load(bytes, name);
    if (file == nullptr)
        return 0;
    return files().emplace_back(std::move(file))->handle();
}

std::int32_t loadIntoStore(std::string_view bytes, std::string_view name) {
    if (!store().load(bytes, name))
        return 0;
    store().resolving = false;
    return 1;
}

/// Hands an open file's content to `load`.
template <typename Load>
std::int32_t withContent(std::int32_t file, Load load) {
    return withMemory(KESH_E_READ, "a language file", [&] {
        const std::string name = LornFD_FileName(file);
        const std::string_view bytes = LornFD_ViewFile(file);
        return bytes.data() == nullptr ? failDriver(KESH_E_READ) : load(bytes, name);
    });
}

// --- Changing

std::int32_t failTaken(const char* what, std::int32_t id) {
    return lastError().set(KESH_E_ID_TAKEN, {{}, what, std::to_string(id)});
}

bool canBeWritten(std::string_view text, const char* what) {
    const std::size_t bad = findNoXmlCharacter(text);
    return bad == text.npos ||
           lastError().set(
               KESH_E_CHARACTER,
               {{}, "offset " + std::to_string(bad) + " of the " + what, hexByte(text[bad])}) != 0;
}

std::int32_t createPage(TextFile& file, std::int32_t id) {
    if (id != 0 && !file.isFree(id, nullptr))
        return failTaken("page", id);
    TextPage& page = file.add();
    page.id = id == 0 ? -1 : id;
    return page.handle();
}

std::int32_t createString(TextPage& page, std::int32_t id) {
    if (id != 0 && !page.isFree(id, nullptr))
        return failTaken("string", id);
    TextString& string = page.add();
    string.id = id == 0 ? -1 : id;
    return string.handle();
}

std::int32_t create(std::int32_t parent, std::int32_t kind, std::int32_t id) {
    if (kind == KESH_TEXT_FILE && parent == 0) {
        auto file = TextFile::create(id);
        return files().emplace_back(std::move(file))->handle();
    }
    TextFile* const file = fileOf(parent);
    TextPage* const page = pageOf(parent);
    if (kind == KESH_TEXT_PAGE && file != nullptr)
        return createPage(*file, id);
    if (kind == KESH_TEXT_STRING && page != nullptr)
        return createString(*page, id);
    if (kind < KESH_TEXT_FILE || kind > KESH_TEXT_STRING)
        return lastError().set(KESH_E_ARGUMENT, {{}, {}, "kind " + std::to_string(kind)});
    return failHandle(parent);
}

// --- Children

/// Hands out as many handles as fit.
class HandleList {
public:
    HandleList(std::int32_t* handles, std::int32_t capacity) : m_next(handles), m_left(capacity) {}

    /// False if nothing more fits.
    bool add(std::int32_t handle) {
        if (m_left <= 0)
            return false;
        *m_next++ = handle;
        return --m_left > 0;
    }

private:
    std::int32_t* m_next;
    std::int32_t m_left;
};

template <typename Items>
std::size_t listObjects(const Items& items, HandleList list) {
    for (const auto& item : items)
        if (!list.add(item->handle()))
            break;
    return items.size();
}

std::size_t listStrings(const StoredPage& page, HandleList list) {
    std::uint32_t position = page.first;
    for (std::uint32_t i = 0; i < page.count; ++i) {
        if (!list.add(storedHandle(storeStringBase, position)))
            break;
        position = store().string(position).next;
    }
    return page.count;
}

std::size_t listPages(HandleList list) {
    const auto count = static_cast<std::uint32_t>(store().pages().size());
    for (std::uint32_t i = 0; i < count && list.add(storedHandle(storePageBase, i)); ++i) {
    }
    return count;
}

std::optional<std::size_t> listChildren(std::int32_t object, HandleList list) {
    if (object == KESH_STORE)
        return listPages(list);
    if (const TextFile* const file = fileOf(object))
        return listObjects(file->pages, list);
    if (const TextPage* const page = pageOf(object))
        return listObjects(page->strings, list);
    if (const StoredPage* const page = storedPageOf(object))
        return listStrings(*page, list);
    if (stringOf(object) != nullptr || storedStringOf(object) != nullptr)
        return 0;
    return std::nullopt;
}

} // namespace

std::int32_t textObjectKind(std::int32_t handle) noexcept {
    if (handle == KESH_STORE)
        return KESH_TEXT_FILE;
    if (const TextObject* const object = TextObject::find(handle))
        return object->kind();
    if (storedPageOf(handle) != nullptr)
        return KESH_TEXT_PAGE;
    return storedStringOf(handle) != nullptr ? KESH_TEXT_STRING : 0;
}

std::int32_t loadTextFile(std::int32_t file) {
    return withContent(file, loadFile);
}

std::int32_t deleteTextObject(std::int32_t parent, std::int32_t object) {
    lastError().clear();
    if (TextFile* const file = fileOf(object); file != nullptr && parent == 0) {
        std::erase_if(files(), [file](const auto& each) { return each.get() == file; });
        return 1;
    }
    if (TextPage* const page = pageOf(object); page != nullptr && page->file.handle() == parent) {
        page->file.remove(*page);
        return 1;
    }
    TextString* const string = stringOf(object);
    if (string != nullptr && string->page.handle() == parent) {
        TextFile::remove(*string);
        return 1;
    }
    // What is in the store stays there, and nothing goes without its parent.
    return failHandle(TextObject::find(object) == nullptr ? object : parent);
}

} // namespace keshobjects

using namespace keshobjects;

std::int32_t Kesh_TRELoadFromMemory(std::string_view Bytes, std::string_view Name) {
    return withMemory(KESH_E_READ, Name, [&] { return loadFile(Bytes, Name); });
}

std::int32_t Kesh_CreateObject(std::int32_t Parent, std::int32_t Kind, std::int32_t Id) {
    return withMemory(KESH_E_READ, "a new object", [&] { return create(Parent, Kind, Id); });
}

std::int32_t Kesh_EnumObjects(std::int32_t Object, std::int32_t* Handles, std::int32_t Capacity,
                              std::int32_t& Count) {
    lastError().clear();
    const auto count = listChildren(Object, HandleList(Handles, Capacity));
    if (!count)
        return failHandle(Object);
    Count = static_cast<std::int32_t>(*count);
    return 1;
}

std::int32_t Kesh_TRESaveToMemory(std::int32_t Object, std::string& Bytes) {
    const TextFile* const file = fileOf(Object);
    if (file == nullptr)
        return failHandle(Object);
    return withMemory(KESH_E_WRITE, file->name(), [&] {
        return Kesh_EncodeXML(file->written(), file->mark(), file->name(), Bytes);
    });
}

std::int32_t Kesh_SaveToFile(std::int32_t File, std::int32_t Object) {
    std::string bytes;
    if (Kesh_TRESaveToMemory(Object, bytes) == 0 || Kesh_TXTWriteFile(File, bytes) == 0)
        return 0;
    return LornFD_SetEndOfFile(File) != 0 ? 1 : failDriver(KESH_E_WRITE);
}

std::int32_t Kesh_TRESetLangID(std::int32_t Object, std::int32_t Lang) {
    lastError().clear();
    if (Object == KESH_STORE) {
        store().language = Lang;
        return 1;
    }
    TextFile* const file = fileOf(Object);
    if (file == nullptr)
        return failHandle(Object);
    file->language = Lang;
    file->changed = true;
    return 1;
}

std::int32_t Kesh_TREGetLangID(std::int32_t Object) {
    lastError().clear();
    if (Object == KESH_STORE)
        return store().language;
    const TextFile* const file = fileOf(Object);
    return file != nullptr ? file->language : failHandle(Object);
}

namespace {

/// Runs an operation on texts, which may need memory for a copy.
template <typename Work>
std::int32_t withTexts(Work work) {
    return withMemory(KESH_E_READ, "a text", work);
}

template <typename Page>
std::int32_t givePage(const Page& page, std::int32_t& id, std::string& title,
                      std::string& description, std::int32_t& voice) {
    id = page.id;
    title = page.title;
    description = page.description;
    voice = page.voice;
    return 1;
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

/// The raw text of a string while it stays as it is; none for another handle.
std::optional<std::string_view> rawTextOf(std::int32_t handle) noexcept {
    if (const TextString* const string = stringOf(handle))
        return string->text;
    if (const StoredString* const string = storedStringOf(handle))
        return string->text();
    return std::nullopt;
}

std::int32_t giveString(std::int32_t handle, std::int32_t& id, std::int32_t& second,
                        std::string& text) {
    second = 0;
    if (const TextString* const string = stringOf(handle)) {
        id = string->id;
        text = string->text;
        return 1;
    }
    const StoredString* const string = storedStringOf(handle);
    if (string == nullptr)
        return failHandle(handle);
    id = string->id;
    const bool refers = store().resolving && string->text().find('{') != std::string_view::npos;
    text = refers ? translate(string->text(), {string->page, string->id}, TextForm::Resolved,
                              lookupIn(nullptr))
                  : std::string(string->text());
    return 1;
}

template <typename Object>
void setId(Object& object, TextFile& file, std::int32_t id) {
    if (object.id != id)
        file.forgetIndex();
    object.id = id;
    object.changed = true;
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

std::int32_t Kesh_TREGetPageInfo(std::int32_t Page, std::int32_t& Id, std::string& Title,
                                 std::string& Description, std::int32_t& Voice) {
    return withTexts([&] {
        if (const TextPage* const page = pageOf(Page))
            return givePage(*page, Id, Title, Description, Voice);
        if (const StoredPage* const page = storedPageOf(Page))
            return givePage(*page, Id, Title, Description, Voice);
        return failHandle(Page);
    });
}

std::int32_t Kesh_TRESetPageInfo(std::int32_t Page, std::int32_t Id, std::string_view Title,
                                 std::string_view Description, std::int32_t Voice) {
    return withTexts([&] {
        TextPage* const page = pageOf(Page);
        if (page == nullptr)
            return failHandle(Page);
        if (Id != page->id && !page->file.isFree(Id, page))
            return failTaken("page", Id);
        if (!canBeWritten(Title, "title") || !canBeWritten(Description, "description"))
            return 0;
        std::string title(Title);
        std::string description(Description);
        setId(*page, page->file, Id);
        page->title = std::move(title);
        page->description = std::move(description);
        page->voice = Voice;
        return 1;
    });
}

std::int32_t Kesh_TREGetStringInfo(std::int32_t String, std::int32_t& Id, std::int32_t& Second,
                                   std::string& Text) {
    return withTexts([&] { return giveString(String, Id, Second, Text); });
}

std::int32_t Kesh_TREGetRawString(std::int32_t String, std::string& Text) {
    return withTexts([&] {
        const auto text = rawTextOf(String);
        if (!text)
            return failHandle(String);
        Text = *text;
        return 1;
    });
}

std::int32_t Kesh_TRESetStringInfo(std::int32_t Page, std::int32_t String, std::int32_t Id,
                                   std::string_view Text) {
    return withTexts([&] {
        TextPage* const page = pageOf(Page);
        TextString* const string = stringOf(String);
        if (page == nullptr || string == nullptr || &string->page != page)
            return failHandle(page == nullptr ? Page : String);
        if (Id != string->id && !page->isFree(Id, string))
            return failTaken("string", Id);
        if (!canBeWritten(Text, "text"))
            return 0;
        string->text = Text;
        setId(*string, page->file, Id);
        return 1;
    });
}

std::int32_t Kesh_TREFindString(std::int32_t Object, std::int32_t Page, std::int32_t Id) {
    if (Object == KESH_STORE)
        if (const std::uint32_t found = store().find(Page, Id); found != TextStore::none)
            return storedHandle(storeStringBase, found);
    return withTexts([&] {
        if (Object == KESH_STORE)
            return 0;
        const TextFile* const file = fileOf(Object);
        if (file == nullptr)
            return failHandle(Object);
        const TextString* const string = file->find(Page, Id);
        return string == nullptr ? 0 : string->handle();
    });
}

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

std::int32_t Kesh_TREDescServerLoadFile(std::int32_t File) {
    return withContent(File, loadIntoStore);
}

std::int32_t Kesh_TREDescServerLoadMemory(std::string_view Bytes, std::string_view Name) {
    return withMemory(KESH_E_READ, Name, [&] { return loadIntoStore(Bytes, Name); });
}

std::int32_t Kesh_TREDescServerTranslateStrings() {
    lastError().clear();
    store().resolving = true;
    return 1;
}

std::int32_t Kesh_TREDescServerUnload() {
    lastError().clear();
    store().clear();
    return 1;
}
