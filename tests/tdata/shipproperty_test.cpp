// Random changes of random ships, held against a plain model after each step.
#include "tdata/shiprecord.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cstdlib>
#include <random>

using support::joined;

namespace {

struct ModelGun {
    int index = 0;
    int count = 0;
    std::string body;
};

struct ModelGroup {
    int init = 0;
    int pseudo = 0;
    std::vector<ModelGun> guns;
};

struct ModelTurret {
    std::string body;
    int type = 0;
    int side = 0;
};

/// A ship as anyone would write it down. Turret and group i belong together.
struct Model {
    std::vector<ModelTurret> turrets;
    std::vector<ModelGroup> groups;
    int guns = 0; ///< field 19

    [[nodiscard]] std::string Text() const;
    [[nodiscard]] std::string Offsets() const;
    [[nodiscard]] int GunTotal() const; ///< of all entries
    [[nodiscard]] bool Valid() const { return GunTotal() == guns; }

    void AddTurret(const ModelTurret& turret) {
        const int next = groups.empty() ? 1 : groups.back().init + groups.back().pseudo;
        turrets.push_back(turret);
        groups.push_back({next, 0, {}});
    }
    void RemoveTurret() {
        turrets.pop_back();
        groups.pop_back();
        Renumber();
    }
    /// After a change of this group's guns.
    void Refresh(ModelGroup& group) {
        group.pseudo = 0;
        for (const ModelGun& gun : group.guns)
            group.pseudo += std::max(0, gun.count);
        Renumber();
        for (ModelGroup& each : groups)
            for (int next = each.init; ModelGun & gun : each.guns) {
                gun.index = next;
                next += gun.count;
            }
    }
    void Renumber() {
        guns = 0;
        for (int next = groups.empty() ? 0 : groups.front().init; ModelGroup & group : groups) {
            group.init = next;
            next += group.pseudo;
            guns += group.pseudo;
        }
    }
};

std::string fields(std::initializer_list<int> numbers) {
    std::string text;
    for (const int number : numbers)
        text += std::to_string(number) + ";";
    return text;
}

std::string Model::Text() const {
    std::string text = support::repeat("0;", 19) + fields({guns}) + support::repeat("0;", 11);
    for (std::size_t pair = 1; pair <= 6; ++pair)
        text += pair < turrets.size() ? fields({turrets[pair].type, turrets[pair].side}) : "0;0;";
    text += support::repeat("0;", 10) + fields({static_cast<int>(turrets.size())});
    for (std::size_t i = 0; i < turrets.size(); ++i) {
        const int index = static_cast<int>(i);
        text += fields({index + 1, index}) + turrets[i].body + ";" + fields({7});
    }
    text += fields({static_cast<int>(groups.size())});
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const auto& group = groups[i];
        text += fields({group.init, group.pseudo, static_cast<int>(i) + 1,
                        static_cast<int>(group.guns.size())});
        for (const ModelGun& gun : group.guns)
            text += fields({gun.index, gun.count}) + gun.body + ";3;;-1;";
    }
    return text + support::shipTail;
}

std::string Model::Offsets() const {
    std::string text;
    int at = 54;
    for (std::size_t i = 0; i < turrets.size(); ++i, at += 4)
        text += "T" + std::to_string(at);
    ++at;
    for (const ModelGroup& group : groups) {
        text += "G" + std::to_string(at);
        at += 4;
        for (std::size_t i = 0; i < group.guns.size(); ++i, at += 6)
            text += "g" + std::to_string(at);
    }
    return text;
}

int Model::GunTotal() const {
    int total = 0;
    for (const ModelGroup& group : groups)
        for (const ModelGun& gun : group.guns)
            total += gun.count;
    return total;
}

std::string offsetsOf(const clsShip& ship) {
    std::string text;
    for (const auto& turret : ship.Turrets())
        text += "T" + std::to_string(turret->Offset());
    for (const auto& group : ship.GunGroups()) {
        text += "G" + std::to_string(group->Offset());
        for (const auto& gun : group->Guns())
            text += "g" + std::to_string(gun->Offset());
    }
    return text;
}

/// Thrown where a plain walk over the fields leaves them or meets no number.
struct Lost {};

/// What a reader of the flat fields finds if he goes by their counts.
class PlainWalk {
public:
    explicit PlainWalk(const clsTXTObject& record) : m_record(record) {}

    [[nodiscard]] bool Fits() const {
        try {
            return Walk();
        } catch (const Lost&) {
            return false;
        }
    }

private:
    [[nodiscard]] std::int64_t At(std::int64_t index) const {
        if (index < 0 || index >= m_record.size())
            throw Lost();
        const auto text = m_record.ValueText(static_cast<std::int32_t>(index));
        std::int64_t number = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
        if (read.ec != std::errc() || read.ptr != text.data() + text.size())
            throw Lost();
        return number;
    }
    /// Things that are put in order need numbers to go by.
    void Order(std::int64_t first, std::int64_t step, std::int64_t count) const {
        for (std::int64_t i = 0; count > 1 && i < count; ++i)
            static_cast<void>(At(first + step * i));
    }
    [[nodiscard]] bool Walk() const {
        const std::int64_t turrets = At(53);
        Order(54, 4, turrets);
        const std::int64_t groups = At(54 + 4 * turrets);
        std::int64_t at = 55 + 4 * turrets;
        std::int64_t guns = 0;
        for (std::int64_t i = 0; i < groups; ++i) {
            Order(at + 2, 0, std::min<std::int64_t>(groups, 2));
            const std::int64_t entries = At(at + 3);
            for (std::int64_t gun = 0; gun < entries; ++gun)
                guns += At(at + 4 + 6 * gun + 1);
            at += 4 + 6 * std::abs(entries);
        }
        return at + 10 == m_record.size() && guns == At(19);
    }

    const clsTXTObject& m_record;
};

class ShipRun {
public:
    explicit ShipRun(unsigned seed) : m_random(seed), m_ship(support::recordOf(Model().Text())) {
        EXPECT_TRUE(m_ship.LoadObjects());
        // From where the numbering starts is the file's own choice.
        if (Pick(2) == 0) {
            Step(&ShipRun::AddTurret);
            m_before = m_model;
            m_model.groups[0].init = Pick(5);
            m_ship.GunGroups()[0]->SetValue(0, m_model.groups[0].init);
            Remember();
        }
    }

    void Go(int steps) {
        using Action = void (ShipRun::*)();
        static constexpr Action actions[]{
            &ShipRun::AddTurret, &ShipRun::AddTurret,   &ShipRun::RemoveTurret,
            &ShipRun::AddGun,    &ShipRun::AddGun,      &ShipRun::AddGun,
            &ShipRun::RemoveGun, &ShipRun::SetGunCount, &ShipRun::BreakCount};
        for (int i = 0; i < steps && !testing::Test::HasFailure(); ++i)
            Step(actions[Pick(std::size(actions))]);
    }
    void SaveAndLoad() {
        clsTxtParser parser;
        ASSERT_TRUE(support::load(parser, "49;1;" + m_model.Text(), otype::Ships));
        m_ship.Object->CopyTo(*parser.FindIndex(0));
        const std::string saved = support::save(parser);
        clsTxtParser again;
        ASSERT_TRUE(support::load(again, saved, otype::Ships));
        EXPECT_EQ(joined(*again.FindIndex(0)), m_model.Text());
    }
    void UndoAll() {
        for (; !m_undo.empty(); m_undo.pop_back()) {
            m_ship.Object->SetValues(m_undo.back().values);
            EXPECT_TRUE(m_ship.LoadObjects());
            EXPECT_EQ(joined(*m_ship.Object), m_undo.back().model.Text());
            EXPECT_EQ(offsetsOf(m_ship), m_undo.back().model.Offsets());
        }
    }

private:
    struct Before {
        clsValueArray values;
        Model model;
    };

    int Pick(std::size_t count) { return static_cast<int>(m_random() % count); }
    void Step(void (ShipRun::*action)()) {
        m_before = m_model;
        (this->*action)();
        Remember();
        Check();
    }
    void Remember() {
        if (auto former = m_ship.Object->TakeFormerValues())
            m_undo.push_back({std::move(*former), m_before});
    }
    void Check() {
        EXPECT_EQ(joined(*m_ship.Object), m_model.Text());
        EXPECT_EQ(offsetsOf(m_ship), m_model.Offsets());
        EXPECT_EQ(m_ship.Validate(), m_model.Valid()) << m_ship.GetLastError();
        clsTxtParser parser;
        ASSERT_TRUE(support::load(parser, "49;1;" + joined(*m_ship.Object), otype::Ships));
        clsShip again(parser.FindIndex(0));
        EXPECT_TRUE(again.LoadObjects()) << again.GetLastError();
        EXPECT_EQ(offsetsOf(again), m_model.Offsets());
        EXPECT_EQ(again.Validate(), m_model.Valid());
    }

    void AddTurret() {
        const std::size_t count = m_model.turrets.size();
        if (count == 7) {
            EXPECT_NE(support::errorOf([&] { m_ship.MakeNewTurret(); }), "");
            return;
        }
        ModelTurret made{"B" + std::to_string(Pick(100)), 0, 0};
        const auto turret = m_ship.MakeNewTurret();
        turret->SetValue(2, made.body);
        turret->SetValue(3, 7);
        if (turret->IsTurret()) {
            made.type = Pick(30);
            made.side = Pick(8);
            turret->SetDescriptorValue(0, made.type);
            turret->SetDescriptorValue(1, made.side);
        }
        m_model.AddTurret(made);
    }
    void RemoveTurret() {
        const auto& turrets = m_ship.Turrets();
        if (turrets.empty())
            return;
        const auto turret = turrets[static_cast<std::size_t>(Pick(turrets.size()))];
        const bool last = turret == turrets.back();
        EXPECT_EQ(m_ship.RemoveTurret(*turret), last) << m_ship.GetLastError();
        if (last)
            m_model.RemoveTurret();
    }
    /// Whether there is a group; m_at is its number.
    bool PickGroup() {
        if (m_model.groups.empty())
            return false;
        m_at = static_cast<std::size_t>(Pick(m_model.groups.size()));
        return true;
    }
    void AddGun() {
        if (!PickGroup())
            return;
        ModelGroup& group = m_model.groups[m_at];
        group.guns.push_back({0, Pick(4), "G" + std::to_string(Pick(100))});
        const auto gun = m_ship.GunGroups()[m_at]->MakeNewGun();
        const KeshValue rest[]{group.guns.back().count, group.guns.back().body, 3, std::string(),
                               -1};
        for (std::size_t i = 0; i < std::size(rest); ++i)
            gun->SetValue(static_cast<std::int32_t>(i) + 1, rest[i]);
        m_ship.GunGroups()[m_at]->RefreshGunCount();
        m_model.Refresh(group);
    }
    void RemoveGun() {
        if (!PickGroup() || m_model.groups[m_at].guns.empty())
            return;
        const auto group = m_ship.GunGroups()[m_at];
        group->RemoveGun(*group->Guns().back());
        m_model.groups[m_at].guns.pop_back();
        m_model.Refresh(m_model.groups[m_at]);
    }
    /// With and without telling the group, and below 0 too.
    void SetGunCount() {
        if (!PickGroup() || m_model.groups[m_at].guns.empty())
            return;
        ModelGroup& group = m_model.groups[m_at];
        const auto gun = static_cast<std::size_t>(Pick(group.guns.size()));
        group.guns[gun].count = Pick(8) - 2;
        m_ship.GunGroups()[m_at]->Guns()[gun]->SetValue(1, group.guns[gun].count);
        if (Pick(2) == 0)
            return;
        m_ship.GunGroups()[m_at]->RefreshGunCount();
        m_model.Refresh(group);
    }
    /// Sets one of the counts to a wrong number, looks at what comes of it, and takes it back.
    void BreakCount() {
        const auto record = m_ship.Object;
        std::vector<std::int32_t> places{19, 53, m_ship.GGCountOffset()};
        for (const auto& group : m_ship.GunGroups())
            places.push_back(group->Offset() + 3);
        const std::int32_t place = places[static_cast<std::size_t>(Pick(places.size()))];
        const std::int32_t now = m_ship.Integer(place);
        const std::int32_t wrong[]{now - 1, now + 1,   -now,      now + 2,
                                   1000,    INT32_MAX, INT32_MIN, INT32_MAX / 6};
        const std::int32_t number = wrong[Pick(std::size(wrong))];
        record->SetValue(place, number);
        EXPECT_EQ(m_ship.Validate(), ValidWith(place, number, now)) << place << " is " << number;
        const bool loaded = m_ship.LoadObjects();
        EXPECT_EQ(m_ship.Validate() && loaded, PlainWalk(*record).Fits())
            << place << " is " << number << " in " << joined(*record);
        if (auto former = record->TakeFormerValues())
            record->SetValues(std::move(*former));
        EXPECT_TRUE(m_ship.LoadObjects());
    }
    /// What Validate says of the objects that were there before a count went wrong: that of gun
    /// groups is none of its business, those of turrets and entries make the size.
    [[nodiscard]] bool ValidWith(std::int32_t place, std::int32_t number, std::int32_t former) {
        if (place == 19)
            return m_model.GunTotal() == number;
        const bool groupCount = place == 54 + 4 * static_cast<int>(m_model.turrets.size());
        const bool sameSize =
            place == 53 ? number == former : std::abs(std::int64_t{number}) == former;
        return (groupCount || sameSize) && m_model.Valid();
    }

    std::mt19937 m_random;
    clsShip m_ship;
    Model m_model;
    Model m_before;
    std::vector<Before> m_undo;
    std::size_t m_at = 0;
};

} // namespace

TEST(ShipProperty, RandomChangesAgreeWithAPlainModel) {
    for (unsigned seed = 1; seed <= 200 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        ShipRun run(seed);
        run.Go(20);
        if (seed % 20 == 0)
            run.SaveAndLoad();
        run.UndoAll();
    }
}
