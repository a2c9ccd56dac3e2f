#include "cli/boxes.h"

#include <algorithm>

#include "cli/output.h"

namespace wb::cli {

void Boxes::add(std::string_view text, std::string_view step) {
    ++count_;
    const auto known = std::find_if(distinct_.begin(), distinct_.end(),
                                    [&](const Box& box) { return box.text == text && box.step == step; });
    last_ = static_cast<std::size_t>(known - distinct_.begin());
    if (known != distinct_.end()) {
        ++known->times;
    } else {
        distinct_.push_back({.text = std::string(text), .step = std::string(step)});
    }
}

std::string boxText(const Box& box) {
    std::string remark = box.times == 1 ? "" : std::to_string(box.times) + " times";
    if (!box.step.empty()) {
        remark += (remark.empty() ? "" : ", ") + box.step;
    }
    return inOneLine(box.text) + (remark.empty() ? "" : " (" + remark + ')');
}

void complainOfBoxes(std::string_view file, const Boxes& boxes) {
    for (const Box& box : boxes.distinct()) {
        const std::string text = boxText(box);
        file.empty() ? complain(text) : complain(file, text);
    }
}

} // namespace wb::cli
