#include "XMLImsBody.h"

namespace {

// Required: the root of the CW indication, `ims-3gpp`, logs the name of the other class, too.
constexpr XmlLogText kAttributeHook = {2, kSchemaCode, __LINE__, "In ix_3gpp_ims::ProcessUnMarshallAttribute"};

}  // namespace

int ix_imsBodyType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    ixLog(SourceFile(), kAttributeHook);
    const bool takes = pair == nullptr && value != nullptr && ixNameIs(attribute, IX_STR_VERSION);
    return takes ? setVersionValue(ixToUnsigned(value)) : 1;
}

int ix_imsBodyType::setVersionValue(unsigned int version) {
    mVersion = version;
    return 1;
}

void XmlImsBodyMarshaller::StartRoot(e_XmlStrRef name, const ix_imsBodyType& root) {
    if (root.mVersion == ix_imsBodyType::kNoVersion) {
        StartElement(name);
        return;
    }
    char digits[32];
    StartElementOpen(name);
    AddOnlyAttribute(IX_STR_VERSION, __itoaL(root.mVersion, digits, sizeof digits, 10), Attribute::Closing);
}
