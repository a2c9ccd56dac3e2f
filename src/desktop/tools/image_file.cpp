#include "desktop/tools/image_file.h"

#include <QFileInfo>

#include "adapters/recognise.h"
#include "desktop/base/text_codec.h"
#include "files/file_content.h"

namespace wb::desktop {

ImageFile readImageFile(const std::string& name) {
    const QString shortName = QFileInfo(fromFileNameBytes(name)).fileName();
    ImageFile file;
    try {
        const forms::Recognition found = adapters::recognise(files::readFile(name));
        for (const Image& image : found.images) {
            file.images.push_back(image.ofFile(name));
        }
        if (file.images.empty()) {
            file.refusal = QString("%1 holds no EDID image: %2.").arg(shortName, toUnicode(found.refusal));
        }
    } catch (const files::InputError& error) {
        file.refusal = QString("%1 cannot be read: %2.").arg(shortName, QString::fromLocal8Bit(error.what()));
    }
    return file;
}

} // namespace wb::desktop
