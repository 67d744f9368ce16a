#include "pdf/OpacityChannel.h"

#include "pdf/CodedSize.h"
#include "pdf/Jpeg2000Header.h"

#include <Object.h>
#include <Stream.h>

namespace orvane::pdf {

OpacityChannel opacityChannelOf(::Stream& stream, int colorComponents) {
    if (stream.getKind() != strJPX || !stream.getDict() || !stream.getNextStream())
        return OpacityChannel::None;
    const ::Object entry = stream.getDict()->lookup("SMaskInData");
    if (!entry.isInt() || (entry.getInt() != 1 && entry.getInt() != 2))
        return OpacityChannel::None;
    const auto header = readJpeg2000Header(codedStart(*stream.getNextStream()));
    if (!header || header->components != colorComponents + 1)
        return OpacityChannel::None;
    return entry.getInt() == 1 ? OpacityChannel::Apart : OpacityChannel::Blended;
}

} // namespace orvane::pdf
