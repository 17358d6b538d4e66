/// @file
/// Characteristics and parms, and what the two documents made of them share: the WAP provisioning document
/// (XMLWapProvisioningDoc.h) and the VoLTE configuration information (XMLVolteConfigInfo.h), which differ by their
/// root.
///
/// - A root has the attribute `version` and holds `characteristic`s; a `characteristic` has the attribute `type` and
///   holds `parm`s and further `characteristic`s; a `parm` has the attributes `name` and `value`.
/// - Namespace: none. Names are compared as they stand in the document, prefix included.
/// - Read only. Other attributes, other elements and texts are ignored. Lost: the order of the `parm`s of a
///   `characteristic` among its `characteristic`s, and a `parm` that lies in no `characteristic`.
/// - An attribute sets a field of the object on top of the stack, whatever element it stands at. It reaches another
///   object than its own where its element is none of the above, was refused, or lies deeper than the stack.
/// - The stack takes 100 objects. A `characteristic` past it is filed in its parent, but never on the stack: its
///   attributes and children go to its parent, and its end tag ends the parent in its place.
#ifndef IX_XML_CHARACTERISTIC_H
#define IX_XML_CHARACTERISTIC_H

#include "XmlOldFamily.h"
#include "XmlFields.h"

/// The names of the two elements.
inline constexpr char kCharacteristicName[] = "characteristic";
inline constexpr char kParmName[] = "parm";

/// The element `parm`: one setting.
class IX_XML_EXPORT ix_parm : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_parm";

    ~ix_parm() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "Parm"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Copies `name`; NULL changes nothing. @return 1, or 0 without memory, the earlier name kept.
    int setParmName(const char* name);
    /// Copies `value`; NULL changes nothing. @return 1, or 0 without memory, the earlier value kept.
    int setParmValue(const char* value);
    /// The name, which stays with the element; NULL: not set.
    char* getParmName() const { return mName; }
    /// The value, which stays with the element; NULL: not set.
    char* getParmValue() const { return mValue; }

    char* mName = nullptr;   ///< Owned; NULL: not set.
    char* mValue = nullptr;  ///< Owned; NULL: not set, as in a setting that counts by its presence.
};

/// The element `characteristic`: a group of settings.
class IX_XML_EXPORT ix_characteristic : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_characteristic";

    ~ix_characteristic() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "Characteristic"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Copies `type`; NULL changes nothing. @return 1, or 0 without memory, the earlier type kept.
    int setTypeValue(const char* type);
    /// Takes over a list of `ix_parm`s, in place of an earlier one, which is deleted. NULL clears the field. @return 1.
    int setParmList(IxSingleElementList* list);
    /// Appends `parm`, which then belongs to the element. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addParm(ix_parm* parm);
    /// Takes over a list of `ix_characteristic`s, in place of an earlier one, which is deleted. NULL clears the field.
    /// @return 1.
    int setCharacteristicList(IxSingleElementList* list);
    /// Appends `characteristic`, which then belongs to the element. @return 1, or 0 without memory, when it stays with
    /// the caller.
    int addCharacteristic(ix_characteristic* characteristic);
    /// The list, which stays with the element; NULL: none.
    IxSingleElementList* getCharacteristicList() const { return mCharacteristicList; }

    char* mType = nullptr;                               ///< Owned; the name of the group. NULL: not set.
    IxSingleElementList* mParmList = nullptr;            ///< Owned `ix_parm`s in the order of the text; NULL: none.
    IxSingleElementList* mCharacteristicList = nullptr;  ///< Owned `ix_characteristic`s, the same; NULL: none.
};

/// The root of both documents.
class IX_XML_EXPORT ix_characteristicDocType : public XMLObject {
  public:
    ~ix_characteristicDocType() override;
    const char* BaseClassName() const override { return "XMLObject"; }
    int Reserved() const override { return 0; }
    int IsRootElement() const override { return 1; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Copies `version`; NULL changes nothing. @return 1, or 0 without memory, the earlier version kept.
    int setVersionValue(const char* version);
    /// Takes over a list of `ix_characteristic`s, in place of an earlier one, which is deleted. NULL clears the field.
    /// @return 1.
    int setCharacteristicList(IxSingleElementList* list);
    /// Appends `characteristic`, which then belongs to the element. @return 1, or 0 without memory, when it stays with
    /// the caller.
    int addCharacteristic(ix_characteristic* characteristic);
    /// The list, which stays with the element; NULL: none.
    IxSingleElementList* getCharacteristicList() const { return mCharacteristicList; }

    char* mVersion = nullptr;                            ///< Owned; NULL: not set.
    IxSingleElementList* mCharacteristicList = nullptr;  ///< Owned `ix_characteristic`s in the order of the text; NULL:
                                                         ///< none.
};

/// What the binder factories of both documents create below the root.
class IX_XML_EXPORT XmlCharacteristicDataBinder : public XMLObjectFactory {
  public:
    /// @return an empty element; NULL without memory.
    ix_characteristic* CreateCharacteristic();
    /// @return an empty element; NULL without memory.
    ix_parm* CreateParm();
};

/// Fills the place of a marshaller: the documents are only read.
class IX_XML_EXPORT XmlCharacteristicMarshaller : public XMLMarshaller {
  public:
    /// @return NULL, whatever `root` is.
    char* Marshall(XMLElement* root) override;
    int Reserved() override { return 0; }
};

/// Its `createMarshaller` answers NULL.
class IX_XML_EXPORT XmlCharacteristicContext : public XmlOldFamilyContext {
  protected:
    XmlOldFamilyMarshaller* NewMarshaller() override { return nullptr; }
};

/// @name Decoder and unmarshaller, as far as they do not depend on the root
/// @{

constexpr XmlOldContainerRow kCharacteristicRow = {XmlOldKnownName::Of(kCharacteristicName), XmlOldContainerRow::Child,
                                                IX_OLD_OBJECT(ix_characteristic)};
constexpr XmlOldContainerRow kParmRow = {XmlOldKnownName::Of(kParmName), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_parm)};

/// @param containers the row of the root and the two rows above.
template <std::size_t count>
constexpr XmlOldDecoderInfo ixCharacteristicDecoderInfo(const char* source, const XmlOldContainerRow (&containers)[count]) {
    XmlOldDecoderInfo info;
    info.source = source;
    // Required: an attribute is offered as if it were an element, and to whatever object is on top of the stack.
    info.attributePolicy = XmlOldAttributePolicy::AsElements;
    info.containers = containers;
    info.containerCount = count;
    return info;
}
/// @}

#endif
