#include "lornfd/writer.h"

#include "lornfd/catalog.h"
#include "lornfd/errors.h"
#include "lornfd/packing.h"
#include "lornfd/reader.h"
#include "lornfd/replacefile.h"

#include <libdeflate.h>
#include <string>
#include <utility>

namespace lornfd {

namespace {

/// Goes straight to the disk, beside the target.
class PlainWriter final : public Writer {
public:
    PlainWriter(std::string_view name, std::unique_ptr<FileReplacement> replacement)
        : Writer(name), m_replacement(std::move(replacement)) {}

private:
    bool take(std::string_view bytes) override { return m_replacement->write(bytes); }
    bool replace() override { return m_replacement->commit(); }

    std::unique_ptr<FileReplacement> m_replacement;
};

/// Stays in memory until it is complete and can be packed.
class CollectingWriter : public Writer {
public:
    CollectingWriter(std::string_view name, std::int32_t form) : Writer(name), m_form(form) {}

private:
    virtual bool store(std::string_view packed) = 0;
    bool take(std::string_view bytes) override {
        m_content += bytes;
        return true;
    }
    bool replace() override {
        if (m_form == LORNFD_PLAIN)
            return store(m_content);
        const auto packed = pack(m_content, m_form, name());
        return packed && store(*packed);
    }

    std::int32_t m_form;
    std::string m_content;
};

class PackedWriter final : public CollectingWriter {
public:
    PackedWriter(std::string_view name, std::int32_t form,
                 std::unique_ptr<FileReplacement> replacement)
        : CollectingWriter(name, form), m_replacement(std::move(replacement)) {}

private:
    bool store(std::string_view packed) override {
        return m_replacement->write(packed) && m_replacement->commit();
    }

    std::unique_ptr<FileReplacement> m_replacement;
};

class EntryWriter final : public CollectingWriter {
public:
    using CollectingWriter::CollectingWriter;

private:
    bool store(std::string_view packed) override {
        const auto update = CatalogUpdate::begin(parts().path, false);
        return update && update->put(parts().entry, packed) && update->commit();
    }
};

} // namespace

std::unique_ptr<Writer> Writer::open(std::string_view name, bool mustExist, std::int32_t form) {
    const FileName parts = FileName::parse(name);
    if (parts.inCatalog && !isSafeEntryName(parts.entry)) {
        fail(LORNFD_E_NAME,
             {.file = parts.shown(), .place = {}, .reason = "an entry cannot have this name"});
        return nullptr;
    }
    if (parts.inCatalog && !CatalogIndex::open(parts.path))
        return nullptr;
    if (mustExist || form == LORNFD_AS_IS) {
        const auto stored = storedForm(name);
        if (!stored)
            return nullptr;
        if (mustExist && *stored == 0) {
            fail(LORNFD_E_NOT_FOUND, {.file = parts.shown(), .place = {}, .reason = {}});
            return nullptr;
        }
        if (form == LORNFD_AS_IS)
            form = *stored != 0 ? *stored : formByName(name);
    }
    if (parts.inCatalog)
        return std::make_unique<EntryWriter>(name, form);
    auto replacement = FileReplacement::begin(parts.path);
    if (!replacement)
        return nullptr;
    if (form == LORNFD_PLAIN)
        return std::make_unique<PlainWriter>(name, std::move(replacement));
    return std::make_unique<PackedWriter>(name, form, std::move(replacement));
}

bool Writer::write(std::string_view bytes) {
    if (m_failed)
        return failEarlier();
    if (bytes.empty())
        return true;
    m_failed = true; // also where taking them throws
    m_failed = !take(bytes);
    m_mark.size += static_cast<std::int64_t>(bytes.size());
    m_mark.crc = libdeflate_crc32(m_mark.crc, bytes.data(), bytes.size());
    return !m_failed;
}

bool Writer::commit() {
    return m_failed ? failEarlier() : replace();
}

bool Writer::failEarlier() const {
    return fail(LORNFD_E_WRITE, {.file = name(), .place = {}, .reason = "an earlier write failed"});
}

} // namespace lornfd
