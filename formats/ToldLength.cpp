#include "formats/ToldLength.h"

namespace vantor {

Extent endToldBy(ByteView& view, std::span<const ToldLength> forms) {
    for (const ToldLength& form : forms) {
        if (!view.matches(form.first.at, form.first.bytes) ||
            !view.matches(form.second.at, form.second.bytes))
            continue;
        const auto told = view.number(form.at, form.bytes, form.endian);
        if (!told)
            return cutOffAt(view, view.size());
        if (*told < form.least || *told == 0xFFFFFFFF)
            return unknownExtent();
        return completeAt(view, addClamped(mulClamped(*told, form.unit), form.apart));
    }
    return unknownExtent();
}

}  // namespace vantor
