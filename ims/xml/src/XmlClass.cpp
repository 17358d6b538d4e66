#include "XmlClass.h"

#include <cstring>

int XmlEnumeration::Read(const char* text) const {
    const XmlEnumeration looked = {rows, width, reach != 0 ? reach : count};
    return exact ? looked.IndexOf(text) : looked.IndexOfPrefix(text);
}

int XmlEnumeration::IndexOf(const char* text) const {
    int index = 0;
    while (index < count && (text == nullptr || std::strcmp(text, TextOf(index)) != 0)) ++index;
    return index;
}

int XmlEnumeration::IndexOfPrefix(const char* text) const {
    int index = 0;
    while (index < count && (text == nullptr || std::strncmp(text, TextOf(index), std::strlen(TextOf(index))) != 0)) {
        ++index;
    }
    return index;
}

bool ixIsClass(const XMLElement* element, const XmlClass& description) {
    const char* const name = element != nullptr ? element->ClassName() : nullptr;
    if (name == nullptr || (name != description.name && std::strcmp(name, description.name) != 0)) return false;
    // Two schemas may have classes of the same name.
    const XmlClass* own = element->Class();
    while (own != nullptr && own != &description) own = own->parent;
    return own != nullptr;
}
