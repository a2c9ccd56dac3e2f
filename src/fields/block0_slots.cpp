#include <algorithm>

#include "fields/block0_parts.h"
#include "fields/descriptors.h"

namespace wb::fields {

namespace {

void checkTag(const Scope& slot, std::uint8_t tag, int revision) {
    const std::optional<int> first = firstRevisionOf(tag);
    if (!first) {
        slot.tell(Severity::Warning, "descriptor.tag_reserved", 3, "tag",
                  "No standard gives the tag " + hexNumber(tag, 8) +
                      "h a meaning, so that software passes over it; correct the tag, or make the descriptor a dummy "
                      "(10h).");
    } else if (revision < *first) {
        slot.tell(Severity::Warning, "descriptor.tag_of_later_revision", 3, "tag",
                  "The descriptor \"" + std::string(descriptorName(tag)) + "\" came with revision 1." +
                      std::to_string(*first) + ", and the block tells 1." + std::to_string(revision) +
                      ", so that software of its time passes over it; raise the revision or take the descriptor out.");
    }
}

void checkUse(const Scope& slot, std::uint8_t tag) {
    if (allZero(slot.bytes(0, detailedTimingSize))) {
        slot.tell(Severity::Warning, "descriptor.all_zero", 0, "",
                  "The 18 bytes are all 0, which is a descriptor of the manufacturer's own without a content, so that "
                  "software may look for one; make it a dummy (tag 10h).");
    } else if (tag == dummyTag) {
        slot.tell(Severity::Note, "descriptor.unused", 0, "",
                  "The descriptor is a dummy and has room for a name, a serial number, range limits or a timing.");
    }
}

/// Kinds of which an image has one; a second name or serial number is taken or passed over as software likes.
bool isSingle(std::uint8_t tag) {
    return tag == nameTag || tag == serialTextTag || tag == rangeLimitsTag;
}

void checkDuplicate(const Scope& base, std::size_t number, std::uint8_t tag) {
    const Image& image = base.reading().image;
    for (std::size_t before = 0; before < number; ++before) {
        if (isSingle(tag) && descriptorTag(image, before) == tag) {
            slotScope(base, number)
                .tell(Severity::Warning, "descriptor.duplicate", 3, "tag",
                      "Descriptor " + std::to_string(before + 1) + " has the kind \"" +
                          std::string(descriptorName(tag)) +
                          "\" too, so that software takes one or the other; keep the right one.");
            return;
        }
    }
}

void checkOrder(const Scope& base, std::size_t number) {
    if (number > 0 && !isTimingSlot(base.reading().image, number - 1)) {
        slotScope(base, number)
            .tell(Severity::Warning, "descriptor.order", 0, "",
                  "The timing stands behind a descriptor, where software that stops at the first descriptor does not "
                  "find it; put timings before descriptors.",
                  "E-EDID 1.4, 3.10");
    }
}

bool areSame(const Image& image, std::size_t a, std::size_t b) {
    const auto first = image.bytes().subspan(slotStart(a), detailedTimingSize);
    const auto second = image.bytes().subspan(slotStart(b), detailedTimingSize);
    return std::equal(first.begin(), first.end(), second.begin());
}

void checkDuplicateTiming(const Scope& base, std::size_t number) {
    for (std::size_t before = 0; before < number; ++before) {
        if (areSame(base.reading().image, before, number)) {
            slotScope(base, number)
                .tell(Severity::Note, "timing.duplicate", 0, "",
                      "The timing is the same as that in slot " + std::to_string(before + 1) +
                          " and tells nothing new; enter the timing that was meant, or make it a dummy (tag 10h).");
            return;
        }
    }
}

} // namespace

void checkSlots(const Scope& base, int revision) {
    for (std::size_t i = 0; i < slotCount; ++i) {
        const std::optional<std::uint8_t> tag = descriptorTag(base.reading().image, i);
        if (!tag) {
            checkOrder(base, i);
            checkDuplicateTiming(base, i);
            continue;
        }
        const Scope slot = slotScope(base, i);
        checkTag(slot, *tag, revision);
        checkUse(slot, *tag);
        checkDuplicate(base, i, *tag);
    }
}

} // namespace wb::fields
