#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace wb {

/// Which way a number goes that lies exactly between two of so many decimals.
enum class Halves { AwayFromZero, ToEven };

/// A number that is not negative, rounded on its exact value in whole numbers, for the sizes that are met most: at most
/// three decimals of a number whose bits reach 64 places behind the point at most.
class ExactRounding {
public:
    static constexpr std::size_t mostDigits = 20; ///< before the point

    static bool fits(double magnitude, int decimals) {
        constexpr double least = 1.0 / 2048; // 53 bits from the eleventh place on
        constexpr double limit = 1e15;
        return decimals < static_cast<int>(powers.size()) && magnitude < limit &&
               (magnitude >= least || magnitude == 0);
    }

    /// Both must fit.
    ExactRounding(double magnitude, int decimals, Halves halves)
        : power_(powers[static_cast<std::size_t>(decimals)]), whole_(static_cast<std::uint64_t>(magnitude)) {
        constexpr double twoTo64 = 18446744073709551616.0;
        constexpr std::uint64_t lowHalf = 0xFFFFFFFFU;
        constexpr std::uint64_t half = std::uint64_t{1} << 63U;
        // The product of the fraction, 64 bits behind the point, and the power, in two halves.
        const auto fraction = static_cast<std::uint64_t>((magnitude - static_cast<double>(whole_)) * twoTo64);
        const std::uint64_t low = (fraction & lowHalf) * power_;
        const std::uint64_t high = (fraction >> 32U) * power_ + (low >> 32U);
        const std::uint64_t rest = (high << 32U) | (low & lowHalf);
        part_ = high >> 32U;
        const bool odd = ((power_ > 1 ? part_ : whole_) & 1U) != 0;
        if (rest > half || (rest == half && (halves == Halves::AwayFromZero || odd))) {
            ++part_;
        }
        if (part_ == power_) {
            part_ = 0;
            ++whole_;
        }
    }

    bool isZero() const { return whole_ == 0 && part_ == 0; }

    /// At least `minimum` digits, mostDigits at most, then the decimals behind a point where there are any.
    std::string text(bool minus, std::size_t minimum) const {
        std::array<char, mostDigits + 12> buffer{}; // filled from its end
        char* const end = buffer.data() + buffer.size();
        char* at = end;
        std::uint64_t rest = part_;
        for (std::uint64_t place = power_; place > 1; place /= 10) {
            *--at = digitOf(rest);
            rest /= 10;
        }
        if (power_ > 1) {
            *--at = '.';
        }
        const char* const point = at;
        for (rest = whole_; rest != 0; rest /= 10) {
            *--at = digitOf(rest);
        }
        while (static_cast<std::size_t>(point - at) < minimum) {
            *--at = '0';
        }
        if (minus) {
            *--at = '-';
        }
        return {at, end};
    }

private:
    static constexpr std::array<std::uint64_t, 4> powers = {1, 10, 100, 1000};

    static char digitOf(std::uint64_t number) { return static_cast<char>('0' + number % 10); }

    std::uint64_t power_;
    std::uint64_t whole_;
    std::uint64_t part_;
};

} // namespace wb
