#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/headless/registry_tree.h"
#include "platform/services.h"

/// A platform without a screen: boxes and dialogs are answered from queues, the clock stands until it is set or waited
/// on, and what the program shows goes to an observer, a line each.
namespace wb::platform::headless {

class HeadlessPlatform : private MessageBoxes,
                         private Dialogs,
                         private Printer,
                         private Settings,
                         private OperatingSystem,
                         private DirectEdidReader,
                         private Shell,
                         private Clock,
                         private EventLoop,
                         private WindowArranger {
public:
    HeadlessPlatform();
    HeadlessPlatform(const HeadlessPlatform&) = delete;
    HeadlessPlatform& operator=(const HeadlessPlatform&) = delete;

    const Services& services() const { return services_; }

    /// Receives each line that the program shows, such as `[box] "Save Changes?" YesNo -> No`.
    std::function<void(const std::string& line)> onLine;
    /// Receives the text of each message box.
    std::function<void(const std::string& text)> onBox;
    /// Receives the text of each message box for which no answer was queued, or one that it does not offer.
    std::function<void(const std::string& text)> onUnansweredBox;

    /// Queues an answer for the next box. A box takes OK, or No where it asks Yes or No, when the queue is empty or the
    /// queued answer is none of those it offers (the answer is used up).
    void queueAnswer(Answer answer) { answers_.push_back(answer); }
    /// Queues the name for the next file dialog; nothing is a cancel, as is an empty queue.
    void queueFileName(std::optional<std::string> name) { fileNames_.push_back(std::move(name)); }
    /// Queues the outcome of the next print dialog; an empty queue is a cancel.
    void queuePrinter(bool confirmed) { printerOutcomes_.push_back(confirmed); }

    void setClock(const DateTime& now);
    void setMajorVersion(int version) { majorVersion_ = version; }
    /// What the direct reader gives, one character a byte.
    void setReaderData(std::string data) { readerData_ = std::move(data); }

    RegistryTree registry;
    std::map<std::string, std::string> settings;
    const std::vector<std::string>& printedTexts() const { return printed_; }

private:
    Answer show(const MessageBox& box) override;
    std::string openFile(const FileDialogRequest& request) override;
    std::string saveFile(const FileDialogRequest& request) override;
    bool print(const std::string& title, int flags) override;
    bool pageSetup(const std::string& title) override;
    void print(const std::string& text) override;
    std::optional<std::string> read(const std::string& name) const override;
    void write(const std::string& name, const std::string& value) override;
    int majorVersion() const override { return majorVersion_; }
    std::string read(const std::string& blanks) override;
    bool start(const ShellCommand& command) override;
    DateTime now() const override { return now_; }
    double secondsSinceMidnight() const override;
    void wait(double seconds) override;
    std::string dayName(const DateTime& date) const override;
    std::string monthName(const DateTime& date) const override;
    void processPending() override;
    void setPointer(Pointer) override {}
    void startTimer(int milliseconds, std::function<void()> fire) override;
    void arrange(Arrangement) override {}

    void line(const std::string& text) const;
    std::string fileDialog(const std::string& kind, const FileDialogRequest& request);

    Services services_;
    std::deque<Answer> answers_;
    std::deque<std::optional<std::string>> fileNames_;
    std::deque<bool> printerOutcomes_;
    std::vector<std::string> printed_;
    DateTime now_;
    double secondFraction_ = 0;
    int majorVersion_ = registryMajorVersion;
    std::string readerData_;
    std::vector<std::function<void()>> timers_;
};

} // namespace wb::platform::headless
