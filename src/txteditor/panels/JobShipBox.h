// The choice of a job's ship among thousands: a box into which a part of the name is typed.
#pragma once

#include "tdata/clsTxtParser.h"

#include <QtWidgets>

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

/// "[empty]", then the ships of a file.
class JobShipsModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// The ships, each under its ID or, with Names, under race, name and variant.
    void SetShips(const clsTxtParser* Ships, bool Names);

    /// Of the first with exactly this ID; -1 if there is none.
    [[nodiscard]] int RowOf(const std::string& ID) const;
    [[nodiscard]] const std::string& ID(int Row) const {
        return m_rows[static_cast<std::size_t>(Row)].ID;
    }
    /// The row that a person means by a text: `Present` if it reads so, else the first, in any
    /// case, else that of the ID; -1 if there is none.
    [[nodiscard]] int RowMeant(const QString& Text, int Present) const;
    /// The place of its class in jobflags::Classes; none if there is no such ship or class.
    [[nodiscard]] std::optional<std::int32_t> ClassOf(const std::string& ID) const;
    /// What a row shows for an ID, or that there is no such ship.
    [[nodiscard]] QString TextOf(const std::string& ID) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;

private:
    struct Ship {
        std::string ID;
        QString Text;
        std::optional<std::int32_t> Class = {};
    };

    std::vector<Ship> m_rows;
    std::unordered_map<std::string, int> m_byId;
};

class JobShipBox : public QComboBox {
    Q_OBJECT

public:
    explicit JobShipBox(QWidget* Parent);

    void SetShips(const clsTxtParser* Ships, bool Names);
    [[nodiscard]] const JobShipsModel& Ships() const noexcept { return *m_ships; }
    /// Nothing is shown without an ID.
    void Show(const std::optional<std::string>& ID);
    /// Takes what is being typed; a text that is no ship is given up.
    void FinishEntry();

Q_SIGNALS:
    /// The user chose another ship.
    void Chosen(const std::string& ID);

protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Take(int Row);
    void OnEditingFinished();

    JobShipsModel* m_ships;
    std::optional<std::string> m_id; ///< that is shown
};
