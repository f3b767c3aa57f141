// Answers in the user's place: each question must be foreseen, and each foreseen question must
// come.
#pragma once

#include "ui/UserInterface.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace support {

class Script {
public:
    Script() {
        auto interface = std::make_unique<Scripted>(*this);
        m_former = SetUserInterface(std::move(interface));
    }
    ~Script() {
        SetUserInterface(std::move(m_former));
        for (const Step& step : m_steps)
            ADD_FAILURE() << "never asked: " << step.Wanted.toStdString();
    }
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    /// A box whose text contains `text`.
    void Box(const QString& text, Answer answer = Answer::Ok) {
        m_steps.push_back({"box", text, answer, {}, {}, {}});
    }
    /// A box during which something happens.
    void Box(const QString& text, Answer answer, std::function<void()> meanwhile) {
        m_steps.push_back({"box", text, answer, {}, {}, std::move(meanwhile)});
    }
    void Open(std::optional<FileChoice> choice) {
        m_steps.push_back({"open", {}, {}, choice, {}, {}});
    }
    void Save(std::optional<FileChoice> choice) {
        m_steps.push_back({"save", {}, {}, choice, {}, {}});
    }
    void Color(std::optional<QColor> color) {
        Text("color", color ? std::optional(color->name()) : std::nullopt);
    }
    /// A "directory".
    void Text(const char* kind, std::optional<QString> text) {
        m_steps.push_back({kind, {}, {}, {}, text, {}});
    }

    std::vector<MessageRequest> Boxes; ///< what was said
    std::vector<FileRequest> Files;    ///< what was chosen from
    QString Offered;                   ///< directory or colour last offered
    QStringList Started;               ///< programs and addresses
    QStringList Arguments;             ///< of the last program
    bool Starts = true;                ///< whether programs do

    [[nodiscard]] QString LastText() const { return Boxes.empty() ? QString() : Boxes.back().Text; }

private:
    struct Step {
        std::string Kind;
        QString Wanted;
        Answer Reply = Answer::Cancel;
        std::optional<FileChoice> File;
        std::optional<QString> Words;
        std::function<void()> Meanwhile;
    };

    /// The next step if it is of this kind, else an empty one and a failure.
    Step Next(const std::string& kind, const QString& text) {
        if (m_steps.empty() || m_steps.front().Kind != kind ||
            !text.contains(m_steps.front().Wanted)) {
            ADD_FAILURE() << "unforeseen " << kind << ": " << text.toStdString();
            return {};
        }
        Step step = std::move(m_steps.front());
        m_steps.pop_front();
        if (step.Meanwhile)
            step.Meanwhile();
        return step;
    }

    class Scripted final : public UserInterface {
    public:
        explicit Scripted(Script& script) : m_script(script) {}

        Answer ShowMessage(QWidget*, const MessageRequest& Request) override {
            m_script.Boxes.push_back(Request);
            return m_script.Next("box", Request.Text).Reply;
        }
        std::optional<FileChoice> ShowOpen(QWidget*, const FileRequest& Request) override {
            m_script.Files.push_back(Request);
            return m_script.Next("open", Request.Title).File;
        }
        std::optional<FileChoice> ShowSave(QWidget*, const FileRequest& Request) override {
            m_script.Files.push_back(Request);
            return m_script.Next("save", Request.Title).File;
        }
        std::optional<QString> PickDirectory(QWidget*, const QString& Title,
                                             const QString& Start) override {
            m_script.Offered = Start;
            return m_script.Next("directory", Title).Words;
        }
        std::optional<QColor> PickColor(QWidget*, const QString& Title,
                                        const QColor& Start) override {
            m_script.Offered = Start.name();
            const auto name = m_script.Next("color", Title).Words;
            return name ? std::optional(QColor(*name)) : std::nullopt;
        }
        bool RunProgram(const QString& Path, const QStringList& Arguments) override {
            m_script.Started.append(Path);
            m_script.Arguments = Arguments;
            return m_script.Starts;
        }
        bool OpenUrl(const QUrl& Url) override {
            m_script.Started.append(Url.toString());
            return true;
        }

    private:
        Script& m_script;
    };

    std::deque<Step> m_steps;
    std::unique_ptr<UserInterface> m_former;
};

} // namespace support
