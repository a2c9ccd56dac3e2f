#pragma once

#include <string_view>

#include "fields/modeline.h"

/// Timings by the VESA Coordinated Video Timings Standard, as libxcvt of X.Org computes them.
namespace wb::adapters {

struct CvtMode {
    int width = 0;  ///< px, a multiple of 8 up to 16384
    int height = 0; ///< lines, up to 16384
    double refreshHertz = 60;
    bool reducedBlanking = false; ///< the first version of it, for multiples of 60 Hz
};

/// The name of the library that the program was built without; empty where cvtModeline works.
std::string_view missingCvtLibrary();

/// The progressive timing for a mode, with a pixel clock in steps of 0.25 MHz and the name that the tool `cvt` gives
/// it. Where the library cannot be had, and for a mode that the standard has no timing for, it is a ModelineError.
fields::Modeline cvtModeline(const CvtMode& mode);

} // namespace wb::adapters
