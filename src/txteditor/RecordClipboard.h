// The records that were copied or cut, shared by all TXT Editor windows, and their text on the
// system's clipboard.
#pragma once

#include "tdata/clsTxtParser.h"

#include <QtWidgets>

#include <vector>

class RecordClipboard : public QObject {
    Q_OBJECT

public:
    enum class Mode { Nothing, Copied, Cut };

    static RecordClipboard& Instance();

    [[nodiscard]] const std::vector<RecordPtr>& Objects() const noexcept { return m_objects; }
    [[nodiscard]] RecordPtr ClipboardObject() const; ///< the first; none if there is none
    [[nodiscard]] Mode ClipboardMode() const noexcept { return m_mode; }
    /// The window they came from; none also if it was closed.
    [[nodiscard]] QWidget* ClipboardSource() const;

    /// Also gives the text to the system's clipboard.
    void Set(std::vector<RecordPtr> Objects, Mode HowTaken, QWidget* Source, const QString& Text);
    /// The window counts as the source of what is there, if anything is.
    void SetSource(QWidget* Source);
    void Clear();

    /// Copied or cut records that can be pasted.
    [[nodiscard]] bool HasObjects() const;
    /// There is text of another origin on the system's clipboard. It is not fetched for that.
    [[nodiscard]] bool HasForeignText() const noexcept { return m_foreignText; }
    /// That text if it may be records, else empty.
    [[nodiscard]] QString ForeignText() const;

Q_SIGNALS:
    void Changed();

private:
    RecordClipboard();
    void LookAtSystem();

    std::vector<RecordPtr> m_objects;
    Mode m_mode = Mode::Nothing;
    QPointer<QWidget> m_source;
    bool m_foreignText = false;
};
