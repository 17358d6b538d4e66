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

#include "XmlFamily.h"

/// Required: an attribute comes as a start tag does, its value as the text. Other objects are ignored.
constexpr XmlAnswers ixSettingAnswers() {
    XmlAnswers answers = ixIgnoring();
    answers.attributesAreTags = true;
    return answers;
}

/// The element `parm`: one setting.
class IX_XML_EXPORT ix_parm : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_parm() : XmlDescribedElement(kClass) {}
    ~ix_parm() override { ixRelease(*this, kClass); }

    /// Copies `name`; NULL changes nothing. @return 1, or 0 without memory, the earlier name kept.
    int setParmName(const char* name) { return name != nullptr ? ixSetText(mName, name) : 1; }
    /// Copies `value`; NULL changes nothing. @return 1, or 0 without memory, the earlier value kept.
    int setParmValue(const char* value) { return value != nullptr ? ixSetText(mValue, value) : 1; }
    /// The name, which stays with the element; NULL: not set.
    char* getParmName() const { return mName; }
    /// The value, which stays with the element; NULL: not set.
    char* getParmValue() const { return mValue; }

    char* mName = nullptr;   ///< Owned; NULL: not set.
    char* mValue = nullptr;  ///< Owned; NULL: not set, as in a setting that counts by its presence.
};

/// The element `characteristic`: a group of settings.
class IX_XML_EXPORT ix_characteristic : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_characteristic() : XmlDescribedElement(kClass) {}
    ~ix_characteristic() override { ixRelease(*this, kClass); }

    /// Copies `type`; NULL changes nothing. @return 1, or 0 without memory, the earlier type kept.
    int setTypeValue(const char* type) { return type != nullptr ? ixSetText(mType, type) : 1; }
    /// Takes over a list of `ix_parm`s, in place of an earlier one, which is deleted. NULL clears the field. @return 1.
    int setParmList(IxSingleElementList* list) { return ixSetList(*this, mParmList, list); }
    /// Appends `parm`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addParm(ix_parm* parm) { return ixAdd(*this, mParmList, parm); }
    /// Takes over a list of `ix_characteristic`s, in place of an earlier one, which is deleted. NULL clears the field.
    /// @return 1.
    int setCharacteristicList(IxSingleElementList* list) { return ixSetList(*this, mCharacteristicList, list); }
    /// Appends `characteristic`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it
    /// stays with the caller.
    int addCharacteristic(ix_characteristic* characteristic) {
        return ixAdd(*this, mCharacteristicList, characteristic);
    }
    /// The list, which stays with the element; NULL: none.
    IxSingleElementList* getCharacteristicList() const { return mCharacteristicList; }

    char* mType = nullptr;                               ///< Owned; the name of the group. NULL: not set.
    IxSingleElementList* mParmList = nullptr;            ///< Owned `ix_parm`s in the order of the text; NULL: none.
    IxSingleElementList* mCharacteristicList = nullptr;  ///< Owned `ix_characteristic`s, the same; NULL: none.
};

/// The root of both documents, each of which derives its own.
class IX_XML_EXPORT ix_characteristicDocType : public XmlDescribedObject {
  public:
    static const XmlClass kClass;

    ~ix_characteristicDocType() override { ixRelease(*this, kClass); }
    /// As the rows say; an attribute comes as an element does, and a `parm` is refused.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Copies `version`; NULL changes nothing. @return 1, or 0 without memory, the earlier version kept.
    int setVersionValue(const char* version) { return version != nullptr ? ixSetText(mVersion, version) : 1; }
    /// Takes over a list of `ix_characteristic`s, in place of an earlier one, which is deleted. NULL clears the field.
    /// @return 1.
    int setCharacteristicList(IxSingleElementList* list) { return ixSetList(*this, mCharacteristicList, list); }
    /// Appends `characteristic`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it
    /// stays with the caller.
    int addCharacteristic(ix_characteristic* characteristic) {
        return ixAdd(*this, mCharacteristicList, characteristic);
    }
    /// The list, which stays with the element; NULL: none.
    IxSingleElementList* getCharacteristicList() const { return mCharacteristicList; }

    char* mVersion = nullptr;                            ///< Owned; NULL: not set.
    IxSingleElementList* mCharacteristicList = nullptr;  ///< Owned `ix_characteristic`s in the order of the text; NULL:
                                                         ///< none.

  protected:
    explicit ix_characteristicDocType(const XmlClass& description) : XmlDescribedObject(description) {}
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

/// What the decoders of both documents share.
class IX_XML_EXPORT XmlCharacteristicDecoder : public XmlFamilyDecoder {
  public:
    /// Offers every attribute to the object on top of the stack as if it were an element.
    int ProcessAttribute(char* element, char* attribute, char* value) override;

  protected:
    using XmlFamilyDecoder::XmlFamilyDecoder;
};

#endif
