#include "tdata/clsValueArray.h"

namespace {

/// Whether the loader would give a spelling back as it is.
bool readsBack(std::string_view spelling, bool jobs) {
    const auto has = [&](std::string_view sign) { return spelling.find(sign) != spelling.npos; };
    if (has(";") || has(std::string_view("\0", 1)) || (!jobs && (has("//") || has("/*"))))
        return false;
    return spelling.empty() ||
           !(keshobjects::isBlank(spelling.front()) || keshobjects::isBlank(spelling.back()));
}

/// The same for the raw rest of a line.
bool readsBackRaw(std::string_view spelling) {
    return spelling.find_first_of(std::string_view("\r\n\0", 3)) == spelling.npos;
}

} // namespace

clsValueArray::clsValueArray(std::shared_ptr<const clsLoadedText> text, std::uint32_t first,
                             std::uint32_t size, ValueForm form, bool written)
    : m_text(std::move(text)), m_first(first), m_size(size), m_form(form), m_written(written) {}

clsValueArray::clsValueArray(std::uint32_t size)
    : m_cells(std::make_shared<std::vector<Cell>>(size, Own{"0", false})), m_size(size) {}

clsValueArray::clsValueArray(std::span<const SpelledValue> values)
    : m_cells(std::make_shared<std::vector<Cell>>()),
      m_size(static_cast<std::uint32_t>(values.size())) {
    m_cells->reserve(values.size());
    for (const auto& [spelling, kind] : values)
        m_cells->push_back(kind == ValueKind::Unset
                               ? Cell()
                               : Own{std::string(spelling), kind == ValueKind::Text});
}

bool clsValueArray::IsTextPlace(std::uint32_t index) const noexcept {
    switch (m_form) {
    case ValueForm::AsShown:
    case ValueForm::List:
        return false;
    case ValueForm::Sections:
        return index % 5 < 2;
    case ValueForm::AllText:
        return true;
    case ValueForm::LastText:
    case ValueForm::LastRaw:
        break;
    }
    return index + 1 == m_size;
}

std::string_view clsValueArray::PlaceSpelling(std::uint32_t index) const {
    const auto text = m_text->Text();
    if (m_form == ValueForm::LastRaw && IsTextPlace(index))
        return keshobjects::rawAt(text, PlaceAt(index));
    if (m_form != ValueForm::List)
        return keshobjects::valueAt(text, PlaceAt(index));
    const auto rest =
        text.substr(PlaceAt(index)); // not the rest of the list, for each of its values
    return keshobjects::trimEnd(rest.substr(0, rest.find_first_of(",;")));
}

ValueKind clsValueArray::Kind(std::uint32_t index) const {
    if (!m_cells)
        return IsTextPlace(index) ? ValueKind::Text : ValueKind::AsSpelled;
    const Cell& cell = (*m_cells)[index];
    if (std::holds_alternative<std::monostate>(cell))
        return ValueKind::Unset;
    const auto* own = std::get_if<Own>(&cell);
    return own != nullptr && own->text ? ValueKind::Text : ValueKind::AsSpelled;
}

std::string_view clsValueArray::Spelling(std::uint32_t index) const {
    if (!m_cells)
        return PlaceSpelling(index);
    const Cell& cell = (*m_cells)[index];
    if (const auto* own = std::get_if<Own>(&cell))
        return own->spelling;
    if (const auto* place = std::get_if<KeshPlace>(&cell))
        return keshobjects::valueAt(m_text->Text(), *place);
    return {};
}

KeshValue clsValueArray::Get(std::uint32_t index) const {
    const ValueKind kind = Kind(index);
    if (kind == ValueKind::Unset)
        return {};
    const auto spelling = Spelling(index);
    return kind == ValueKind::Text ? KeshValue(std::string(spelling))
                                   : keshobjects::readValue(spelling);
}

std::optional<double> clsValueArray::SpelledNumber(std::uint32_t index) const {
    return IsText(index) ? std::nullopt : keshobjects::readNumber(Spelling(index));
}

std::vector<clsValueArray::Cell>& clsValueArray::OwnCells() {
    if (!m_cells) {
        auto cells = std::make_shared<std::vector<Cell>>();
        cells->reserve(m_size);
        for (std::uint32_t i = 0; i < m_size; ++i)
            if (IsTextPlace(i) || m_form == ValueForm::List)
                cells->push_back(Own{std::string(PlaceSpelling(i)), IsTextPlace(i)});
            else
                cells->push_back(PlaceAt(i));
        m_cells = std::move(cells);
        m_form = ValueForm::AsShown;
        m_written = false;
    } else if (m_cells.use_count() > 1) {
        m_cells = std::make_shared<std::vector<Cell>>(*m_cells);
    }
    return *m_cells;
}

void clsValueArray::Set(std::uint32_t index, const KeshValue& value) {
    Cell& cell = OwnCells()[index];
    if (std::holds_alternative<std::monostate>(value))
        cell = std::monostate();
    else
        cell = Own{keshobjects::spellValue(value), std::holds_alternative<std::string>(value)};
}

void clsValueArray::Insert(std::uint32_t index, std::uint32_t count) {
    auto& cells = OwnCells();
    cells.insert(cells.begin() + index, count, std::monostate());
    m_size += count;
}

void clsValueArray::Remove(std::uint32_t index, std::uint32_t count) {
    auto& cells = OwnCells();
    cells.erase(cells.begin() + index, cells.begin() + index + count);
    m_size -= count;
}

std::optional<std::string_view> clsValueArray::Written() const {
    if (!m_written || m_cells || m_size == 0)
        return {};
    const auto text = m_text->Text();
    const std::size_t first = PlaceAt(0);
    const std::size_t last = PlaceAt(m_size - 1) + PlaceSpelling(m_size - 1).size();
    // A last value that ends with the text has no ";" to copy.
    if (last >= text.size() || text[last] != ';')
        return {};
    return text.substr(first, last + 1 - first);
}

std::optional<std::uint32_t> clsValueArray::FirstUnwritable(bool jobs) const {
    for (std::uint32_t i = 0; m_cells && i < m_size; ++i) {
        const auto* own = std::get_if<Own>(&(*m_cells)[i]);
        const bool raw = jobs && i + 1 == m_size;
        if (own != nullptr && !(raw ? readsBackRaw(own->spelling) : readsBack(own->spelling, jobs)))
            return i;
    }
    return {};
}

bool clsValueArray::SameAs(const clsValueArray& other) const {
    if (m_size != other.m_size)
        return false;
    for (std::uint32_t i = 0; i < m_size; ++i)
        if (Kind(i) != other.Kind(i) || Spelling(i) != other.Spelling(i))
            return false;
    return true;
}
