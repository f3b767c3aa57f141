#include "keshobjects/keshtexts.h"

#include "keshobjects/encodings.h"
#include "keshobjects/keshtexthandles.h"
#include "keshobjects/xmltext.h"
#include "lornfd/lornfd.h"

#include <memory>
#include <optional>
#include <utility>

namespace keshobjects {
namespace {

std::vector<std::unique_ptr<TextFile>>& files() {
    static std::vector<std::unique_ptr<TextFile>> open;
    return open;
}

std::int32_t failDriver(KeshObjectsError code) {
    return lastError().set(code, {{}, {}, driverReason()});
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

// --- Pages and strings

template <typename Page>
std::int32_t givePage(const Page& page, std::int32_t& id, std::string& title,
                      std::string& description, std::int32_t& voice) {
    id = page.id;
    title = page.title;
    description = page.description;
    voice = page.voice;
    return 1;
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

} // namespace

TextStore theStore;

std::int32_t failHandle(std::int32_t handle) {
    return lastError().set(KESH_E_HANDLE, {{}, {}, std::to_string(handle)});
}

std::optional<std::string_view> rawTextOf(std::int32_t handle) noexcept {
    if (const TextString* const string = stringOf(handle))
        return string->text;
    if (const StoredString* const string = storedStringOf(handle))
        return string->text();
    return std::nullopt;
}

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
