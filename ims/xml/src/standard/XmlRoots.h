/// @file
/// The root elements of a schema, and its namespace.
#ifndef IX_XML_ROOTS_H
#define IX_XML_ROOTS_H

#include "XmlClass.h"
#include "XmlReader.h"

/// A root element that a schema knows.
struct XmlRoot {
    const XmlClass* description = nullptr;  ///< NULL: it does not know it.
    XmlSlice name;
    XmlNamespace ns = XmlNamespace::None;
};

/// By the local name of the element.
XmlRoot ixRootOf(const XmlSchemaInfo& schema, const XmlSlice& local);
/// By the class of the object.
XmlRoot ixRootOf(const XmlSchemaInfo& schema, const XmlClass& description);
/// The number of a schema's main namespace.
XmlNamespace ixMainNamespace(const XmlSchemaInfo& schema);

#endif
