/// @file
/// What the root elements of the supplementary services share (3GPP TS 24.623, simservs XML schema).
#ifndef IX_XML_SIMSERVS_XCAP_H
#define IX_XML_SIMSERVS_XCAP_H

#include "XMLCommonDef.h"
#include "XmlFields.h"

/// The simserv type: a service that is switched on or off.
class IX_XML_EXPORT ix_ns_xcap_simservType : public XMLObject {
  public:
    ~ix_ns_xcap_simservType() override;
    const char* BaseClassName() const override { return "XMLObject"; }
    int Reserved() const override { return 0; }
    int IsRootElement() const override { return 1; }
    const XmlFieldTable* FieldTable() const override;

    /// @return 1.
    int setActiveValue(int active);
    /// Takes over a list of `ix_AttributeValuePair`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setExtensionListValue(IxSingleElementList* list);
    /// Appends a pair, which then belongs to the element. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addExtension(ix_AttributeValuePair* pair);

    int mActive = 1;                                ///< 1 active, else inactive; a new service is active.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned `ix_AttributeValuePair`s: every attribute but "active",
                                                    ///< such as namespace declarations, to be written back. NULL: none.

  protected:
    /// The source file of the service's own class, under which its list is registered.
    virtual const char* SourceFile() const = 0;
    /// The source line that goes with it.
    virtual int ExtensionListLine() const = 0;
};

#endif
