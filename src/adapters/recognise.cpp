#include "adapters/recognise.h"

#include "adapters/gzip.h"

namespace wb::adapters {

forms::Recognition recognise(std::string_view content, forms::RecognitionOptions options) {
    options.inflate = [](std::string_view bytes) { return uncompressGzip(bytes); };
    return forms::recognise(content, options);
}

} // namespace wb::adapters
