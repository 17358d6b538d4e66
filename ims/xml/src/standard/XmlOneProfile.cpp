// What stands for the standard profile in a build without it.
#include "XmlStandard.h"

bool ixHasStandardProfile(const XmlSchemaInfo& /*schema*/) { return false; }

XMLContext* ixNewStandardContext(const XmlSchemaInfo& /*schema*/) { return nullptr; }

int ixValidate(const XmlSchemaInfo& /*schema*/, const char* /*text*/, std::size_t /*length*/,
               void (*report)(const XmlProblem& problem, void* context), void* context) {
    if (report != nullptr) report({0, 0, "the library was built without the standard profile"}, context);
    return -1;
}
