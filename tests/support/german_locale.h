#pragma once

#include <cstdlib>
#include <string>

#include "support/temporary_folder.h"

namespace wb::test {

/// Makes the locale "de_DE.UTF-8", which has a decimal comma and names beyond ASCII, from the system's source files and
/// lets the process find it while the object lives. Needs the package locales.
class GermanLocale {
public:
    static constexpr const char* name = "de_DE.UTF-8";

    GermanLocale() {
        const std::string command =
            std::string("localedef --no-archive -i de_DE -f UTF-8 '") + folder_.file(name) + "' 2>/dev/null";
        available_ = std::system(command.c_str()) == 0;
        setenv("LOCPATH", folder_.file("").c_str(), 1);
    }
    GermanLocale(const GermanLocale&) = delete;
    GermanLocale& operator=(const GermanLocale&) = delete;
    ~GermanLocale() { unsetenv("LOCPATH"); }

    bool available() const { return available_; }

private:
    TemporaryFolder folder_;
    bool available_ = false;
};

} // namespace wb::test
