#include "shell/history.h"

#include <optional>
#include <vector>

#include "block0/extension_button.h"
#include "cea/definitions.h"
#include "core/base/image_layout.h"
#include "core/input.h"
#include "report/definitions.h"
#include "shell/change_name.h"
#include "shell/frame.h"
#include "shell/go_to_byte.h"
#include "shell/image_state.h"

namespace wb::shell {

namespace {

constexpr std::size_t wholeCell = 2; ///< characters

struct Step {
    ImageState before;
    ImageState after;
    std::optional<int> byte; ///< that of the last cell that had the focus when the action began
    Deed deed;
};

class History : public ChangeHistory {
public:
    explicit History(Workbench& workbench) : workbench_(workbench), clean_(ImageState::of(workbench)) {}

    void actionBegins(Deed deed, const Control* control) override;
    void actionEnded() override;
    void focusEntered(const Control& control) override;
    void imageLoaded() override;
    void imageSaved() override { clean_ = ImageState::of(workbench_); }
    bool undo() override;
    bool redo() override;
    std::string undoName() const override { return canUndo() ? nameOf(steps_[done_ - 1]) : std::string(); }
    std::string redoName() const override { return canRedo() ? nameOf(steps_[done_]) : std::string(); }
    bool canUndo() const override { return done_ > 0; }
    bool canRedo() const override { return done_ < steps_.size(); }

private:
    void beginAnew();
    void add(ImageState after);
    bool continuesTyping() const;
    void goTo(const ImageState& state, std::optional<int> byte);
    void giveFocus(int byte);
    bool withinReach() const;
    static std::string nameOf(const Step& step);

    Workbench& workbench_;
    std::vector<Step> steps_;
    std::size_t done_ = 0;       ///< steps from there on have been taken back
    ImageState clean_;           ///< the image that was loaded or saved last
    std::optional<int> visited_; ///< the byte whose cell had the focus last

    // The action that runs, or ran last.
    ImageState before_;
    std::optional<int> visitedBefore_;
    std::optional<int> keyed_; ///< the byte whose cell its key went to
    Deed deed_ = Deed::Other;
    bool replaced_ = false;     ///< it has loaded another image
    std::optional<int> typing_; ///< the byte whose keys make up the last step
};

void History::beginAnew() {
    steps_.clear();
    done_ = 0;
    typing_.reset();
    clean_ = ImageState::of(workbench_);
}

void History::actionBegins(Deed deed, const Control* control) {
    before_ = ImageState::of(workbench_);
    visitedBefore_ = visited_;
    deed_ = deed;
    keyed_ = deed == Deed::Key ? byteOf(control) : std::nullopt;
    replaced_ = false;
}

void History::actionEnded() {
    if (typing_ != keyed_) {
        typing_.reset();
    }
    if (replaced_) {
        return;
    }
    ImageState after = ImageState::of(workbench_);
    if (!before_.hasBlock(0) || !after.hasBlock(0)) {
        if (before_.hasBlock(0) != after.hasBlock(0)) {
            beginAnew();
        }
        return;
    }
    if (after.changedSince(before_)) {
        add(std::move(after));
    }
}

void History::add(ImageState after) {
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
    if (continuesTyping()) {
        steps_.back().after = std::move(after);
        if (!steps_.back().after.changedSince(steps_.back().before)) {
            steps_.pop_back();
        }
    } else {
        steps_.push_back({.before = before_, .after = std::move(after), .byte = visitedBefore_, .deed = deed_});
    }
    done_ = steps_.size();
    typing_ = keyed_;
}

/// Whether the key goes on with a cell that the keys before have left unfinished.
bool History::continuesTyping() const {
    if (steps_.empty() || !keyed_ || typing_ != keyed_) {
        return false;
    }
    return before_.text(*keyed_).size() != wholeCell;
}

void History::focusEntered(const Control& control) {
    if (const auto byte = byteOf(&control)) {
        visited_ = byte;
    }
}

void History::imageLoaded() {
    beginAnew();
    replaced_ = true;
}

bool History::withinReach() const {
    const Screen* frame = workbench_.loaded(ScreenId::Main);
    return frame != nullptr && input::reachable(*frame);
}

bool History::undo() {
    if (!canUndo() || !withinReach()) {
        return false;
    }
    const Step& step = steps_[--done_];
    workbench_.runAction([&] { goTo(step.before, step.byte); });
    return true;
}

bool History::redo() {
    if (!canRedo() || !withinReach()) {
        return false;
    }
    const Step& step = steps_[done_++];
    workbench_.runAction([&] { goTo(step.after, step.byte); });
    return true;
}

void History::goTo(const ImageState& state, std::optional<int> byte) {
    typing_.reset();
    const std::string extensions = ImageState::of(workbench_).text(extensionCountCell);
    state.restore(workbench_);
    // A visit of a descriptor has every block read as one until the next visit, and these cells may hold timings again.
    workbench_.frmEDID().CurrentBlockIsDescriptor = flagFalse;
    trapped(workbench_, [&] { report::BuildEDIDDefinations(workbench_); });
    if (workbench_.loaded(ScreenId::CeaExt) != nullptr) {
        cea::BuildCEA_EXT_Definations(workbench_);
    }
    if (state.text(extensionCountCell) != extensions) {
        trapped(workbench_, [&] { block0::UpdateExtensionButton(workbench_); });
    }
    workbench_.EDIDRedecodeNeeded = flagTrue; // the visit below makes an open report anew
    if (byte) {
        trapped(workbench_, [&] { giveFocus(*byte); });
    }
    workbench_.EDIDModified = flag(!ImageState::of(workbench_).sameImage(clean_));
}

/// A cell that has the focus gets it anew, as its events are what fills the panel.
void History::giveFocus(int byte) {
    const ScreenId id = byte < blockSize ? ScreenId::Edid : ScreenId::CeaExt;
    if (id == ScreenId::CeaExt && workbench_.CEAScreenOpen == flagFalse) {
        Command4_Click(workbench_);
    }
    auto& screen = static_cast<BlockScreen&>(workbench_.touch(id));
    workbench_.focus.clear();
    workbench_.focus.moveTo(screen.txtEdit(byte % blockSize));
}

std::string History::nameOf(const Step& step) {
    switch (step.deed) {
        case Deed::DoubleClick:
            return "Blanked descriptor";
        case Deed::Paste:
            return "Pasted bytes";
        case Deed::Key:
        case Deed::Other:
            break;
    }
    return changeName(step.before, step.after);
}

} // namespace

void keepHistory(Workbench& workbench) {
    if (workbench.history == nullptr) {
        workbench.history = std::make_unique<History>(workbench);
    }
}

} // namespace wb::shell
