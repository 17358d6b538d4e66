// Changes of a tree in one call each.
#include "XmlEdit.h"

#include <functional>

#include "XMLConferenceInfo.h"
#include "XMLImdn.h"
#include "XMLMediaControl.h"
#include "XMLRcsTermsInfo.h"
#include "XMLReginfo.h"
#include "XMLSimservs.h"
#include "XmlDocument.h"
#include "XmlTest.h"

namespace {

class EditTest : public XmlTest {
  protected:
    /// The ids of the rules, in order, with the count and the last one of the list.
    static std::string RulesOf(const ix_ns_common_policy_ruleset& ruleset) {
        std::string ids;
        for (const auto* rule : XmlEntries<ix_ns_common_policy_ruleType>(ruleset.mRuleList)) ids += rule->mId;
        if (ruleset.mRuleList == nullptr) return ids;
        ids += std::to_string(ruleset.mRuleList->GetCount());
        const IxSingleElementNode* const last = ruleset.mRuleList->LastNode();
        return last != nullptr ? ids + static_cast<ix_ns_common_policy_ruleType*>(last->key)->mId : ids;
    }
    static ix_ns_common_policy_ruleType* NewRule(const char* id) {
        auto* const rule = ixNew<ix_ns_common_policy_ruleType>("test");
        rule->setIdValue(id);
        return rule;
    }
};

TEST_F(EditTest, EntriesComeAndGoAnywhere) {
    ix_ns_common_policy_ruleset ruleset;
    IxSingleElementList* const& list = ruleset.mRuleList;
    auto* const b = NewRule("b");
    auto* const other = NewRule("x");
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, b, other), 0) << "there is nothing to be in front of";
    EXPECT_EQ(XmlEdit::Replace(ruleset, list, other, b), 0);
    EXPECT_EQ(XmlEdit::Remove(ruleset, list, b), 0);
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, b), 1);
    EXPECT_EQ(RulesOf(ruleset), "b1b");
    auto* const a = NewRule("a");
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, a, b), 1);
    auto* const d = NewRule("d");
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, d), 1);
    auto* const c = NewRule("c");
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, c, d), 1);
    EXPECT_EQ(RulesOf(ruleset), "abcd4d");

    // What does not fit changes nothing.
    ix_string foreign;
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, &foreign), 0);
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, static_cast<XMLElement*>(nullptr)), 0);
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, c), 0) << "it would be deleted twice";
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, c, a), 0);
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, "text"), 0);
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, other, &foreign), 0);
    EXPECT_EQ(XmlEdit::Replace(ruleset, list, a, &foreign), 0);
    EXPECT_EQ(XmlEdit::Replace(ruleset, list, a, b), 0);
    EXPECT_EQ(XmlEdit::Replace(ruleset, list, a, a), 0);
    EXPECT_EQ(XmlEdit::Replace(ruleset, list, &foreign, other), 0);
    EXPECT_EQ(XmlEdit::Replace(ruleset, list, a, static_cast<XMLElement*>(nullptr)), 0);
    EXPECT_EQ(XmlEdit::Remove(ruleset, list, other), 0);
    EXPECT_EQ(XmlEdit::Remove(ruleset, list, nullptr), 0);
    EXPECT_EQ(XmlEdit::Take(ruleset, list, &foreign), nullptr);
    IxSingleElementList* const stray = nullptr;
    EXPECT_EQ(XmlEdit::Insert(ruleset, stray, other), 0) << "no list of this element";
    EXPECT_EQ(RulesOf(ruleset), "abcd4d");

    EXPECT_EQ(XmlEdit::Replace(ruleset, list, d, other), 1);
    EXPECT_EQ(RulesOf(ruleset), "abcx4x");
    EXPECT_EQ(XmlEdit::Remove(ruleset, list, a), 1);
    EXPECT_EQ(XmlEdit::Remove(ruleset, list, other), 1);
    EXPECT_EQ(RulesOf(ruleset), "bc2c");
    const XmlOwned<ix_ns_common_policy_ruleType> taken = ixTake(ruleset, list, c);
    EXPECT_EQ(taken.get(), c);
    EXPECT_EQ(ixTake(ruleset, list, c), nullptr);
    EXPECT_EQ(XmlEdit::Remove(ruleset, list, b), 1);
    EXPECT_EQ(RulesOf(ruleset), "0");
    EXPECT_EQ(XmlEdit::Insert(ruleset, list, NewRule("e")), 1);
    EXPECT_EQ(RulesOf(ruleset), "e1e");
}

TEST_F(EditTest, TextsAndPairsAreEntriesToo) {
    ix_status status;
    auto* const first = ixCreatePair("a", "1", "test");
    EXPECT_EQ(XmlEdit::Insert(status, status.mAnyAttributeList, first), 1);
    EXPECT_EQ(XmlEdit::Insert(status, status.mAnyAttributeList, ixCreatePair("b", "2", "test"), first), 1);
    EXPECT_EQ(XmlEdit::Replace(status, status.mAnyAttributeList, first, ixCreatePair("c", "3", "test")), 1);
    std::string names;
    for (const auto* pair : XmlEntries<ix_AttributeValuePair>(status.mAnyAttributeList)) names += pair->mName;
    EXPECT_EQ(names, "bc");

    XmlDocument<ix_Simservs> none;
    ix_conference_description_type description;
    EXPECT_EQ(XmlEdit::Insert(description, description.mKeywords, "two"), 1);
    const void* const two = description.mKeywords->LastNode()->key;
    EXPECT_EQ(XmlEdit::Insert(description, description.mKeywords, "one", two), 1);
    EXPECT_EQ(XmlEdit::Replace(description, description.mKeywords, two, "drei"), 1);
    std::string words;
    for (const char* word : XmlEntries<const char>(description.mKeywords)) words += word;
    EXPECT_EQ(words, "onedrei");
    EXPECT_EQ(XmlEdit::Remove(description, description.mKeywords, description.mKeywords->LastNode()->key), 1);
}

// What an element that no field holds stood behind may go, and its memory become that of a new entry.
TEST_F(EditTest, WhatStoodBehindAnEntryStaysWhereItWas) {
    constexpr char kBegin[] =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<reginfo xmlns=\"urn:ietf:params:xml:ns:reginfo\" version=\"1\" state=\"full\">";
    constexpr char kFirst[] = "<registration aor=\"1\" id=\"1\" state=\"active\"/>";
    constexpr char kSecond[] = "<registration aor=\"2\" id=\"2\" state=\"active\"/>";
    const std::string text = std::string(kBegin) + kFirst + "<a xmlns=\"urn:x\"/>" + kSecond + "</reginfo>";
    XmlDocument<ix_reginfo> document(IX_XML_PROFILE_STANDARD);
    const auto put = [&](ix_registration* registration) {
        registration->setAorValue("n");
        registration->setIdValue("n");
        registration->setStateValue(IX_REGISTRATION_STATE_ACTIVE);
        return registration;
    };
    const std::string added = "<registration aor=\"n\" id=\"n\" state=\"active\"/>";
    const auto first = [&] { return static_cast<ix_registration*>(document->mRegistrationList->GetKeyAtIndex(0)); };

    ASSERT_TRUE(document.Read(text.c_str()));
    ASSERT_EQ(XmlEdit::Replace(*document, document->mRegistrationList, first(), put(ixNew<ix_registration>("t"))), 1);
    EXPECT_EQ(document.Write(), kBegin + added + "<a xmlns=\"urn:x\"/>" + kSecond + "</reginfo>");

    ASSERT_TRUE(document.Read(text.c_str()));
    ASSERT_EQ(XmlEdit::Remove(*document, document->mRegistrationList, first()), 1);
    // The host's memory is likely to come back at the same place.
    for (int i = 0; i < 4; ++i) put(ixAddNew<ix_registration>(*document, document->mRegistrationList));
    EXPECT_EQ(document.Write(),
              std::string(kBegin) + "<a xmlns=\"urn:x\"/>" + kSecond + added + added + added + added + "</reginfo>");
}

TEST_F(EditTest, FlagsArePresentAndNamedInOneCall) {
    ix_ns_common_policy_conditionsType conditions;
    IxSingleElementList* const& list = conditions.mOtherConditionsList;
    EXPECT_EQ(XmlEdit::SetFlag(conditions, list, "busy", false), 1);
    EXPECT_EQ(XmlEdit::SetFlag(conditions, list, "busy"), 1);
    EXPECT_EQ(XmlEdit::SetFlag(conditions, list, "busy"), 1);
    EXPECT_EQ(XmlEdit::SetFlag(conditions, list, "roaming"), 1);
    ASSERT_EQ(list->GetCount(), 2);
    auto* const busy = static_cast<ix_empty_element_type*>(list->GetKeyAtIndex(0));
    EXPECT_STREQ(busy->mName, "busy");
    EXPECT_EQ(busy->mPresent, 1);
    busy->setPresentValue(0);
    EXPECT_EQ(XmlEdit::SetFlag(conditions, list, "busy"), 1);
    EXPECT_EQ(busy->mPresent, 1) << "one that was there without being present";
    EXPECT_EQ(XmlEdit::SetFlag(conditions, list, "busy", false), 1);
    EXPECT_EQ(list->GetCount(), 1);
    EXPECT_EQ(XmlEdit::SetFlag(conditions, list, nullptr), 0);
    EXPECT_EQ(XmlEdit::SetFlag(conditions, conditions.mIdentityList, "busy"), 0) << "has no place for flags";

    ix_status status;
    EXPECT_EQ(XmlEdit::SetFlag(status, "delivered"), 1);
    EXPECT_TRUE(ixIs<ix_delivered>(status.mDelivered));
    EXPECT_EQ(XmlEdit::SetFlag(status, "delivered"), 1);
    EXPECT_EQ(XmlEdit::SetFlag(status, "delivered", false), 1);
    EXPECT_EQ(status.mDelivered, nullptr);
    EXPECT_EQ(XmlEdit::SetFlag(status, "attributes"), 0);
    EXPECT_EQ(XmlEdit::SetFlag(status, "nothing"), 0);
    ix_to_encoder encoder;
    EXPECT_EQ(XmlEdit::SetFlag(encoder, "picture_fast_update"), 1);
    EXPECT_STREQ(encoder.mPictureFastUpdate->mName, "picture_fast_update");
    EXPECT_EQ(encoder.mPictureFastUpdate->mPresent, 1);
    encoder.mPictureFastUpdate->setPresentValue(0);
    EXPECT_EQ(XmlEdit::SetFlag(encoder, "picture_fast_update"), 1);
    EXPECT_EQ(encoder.mPictureFastUpdate->mPresent, 1);
}

TEST_F(EditTest, AttributesAreSetByName) {
    XmlDocument<ix_communication_waiting> document;
    ASSERT_TRUE(document.Create());
    EXPECT_EQ(XmlEdit::Declare(*document, "", "urn:a"), 1);
    EXPECT_EQ(XmlEdit::Declare(*document, "x", "urn:x"), 1);
    EXPECT_EQ(XmlEdit::Declare(*document, nullptr, "urn:b"), 1);
    EXPECT_EQ(XmlEdit::SetAttribute(*document, "x:level", "3"), 1);
    EXPECT_STREQ(document.Write(),
                 "<communication-waiting  xmlns=\"urn:b\"  xmlns:x=\"urn:x\"  x:level=\"3\"  active=\"false\"/>");
    EXPECT_EQ(XmlEdit::SetAttribute(*document, "x:level", nullptr), 1);
    EXPECT_EQ(XmlEdit::SetAttribute(*document, "x:level", nullptr), 1);
    EXPECT_EQ(XmlEdit::SetAttribute(*document, "xmlns:x", nullptr), 1);
    EXPECT_EQ(XmlEdit::SetAttribute(*document, "active", "true"), 0) << "has a field";
    EXPECT_EQ(XmlEdit::SetAttribute(*document, nullptr, "true"), 0);
    EXPECT_EQ(XmlEdit::Declare(*document, "y", nullptr), 0);
    EXPECT_STREQ(document.Write(), "<communication-waiting  xmlns=\"urn:b\"  active=\"false\"/>");
    XmlDocument<ix_rcs_terms_info> none;
    ASSERT_TRUE(none.Create());
    EXPECT_EQ(XmlEdit::SetAttribute(*none, "x", "1"), 0) << "keeps none";
}

// Each change is made whole or not at all, and what could not be put in is still the caller's.
TEST_F(EditTest, NothingIsLostWithoutMemory) {
    ix_ns_common_policy_conditionsType conditions;
    XmlDocument<ix_communication_waiting> document;
    ASSERT_TRUE(document.Create());
    ix_conference_description_type description;
    ix_ns_common_policy_ruleType rule;
    ix_status status;
    ASSERT_EQ(XmlEdit::Insert(description, description.mKeywords, "one"), 1);
    const void* const one = description.mKeywords->LastNode()->key;
    const std::function<bool()> changes[] = {
        [&] { return XmlEdit::SetFlag(conditions, conditions.mOtherConditionsList, "busy") != 0; },
        [&] { return XmlEdit::SetFlag(status, "delivered") != 0; },
        [&] { return XmlEdit::Declare(*document, "x", "urn:x") != 0; },
        [&] { return XmlEdit::Declare(*document, "x", "urn:y") != 0; },
        [&] { return XmlEdit::Insert(description, description.mKeywords, "zero", one) != 0; },
        [&] { return XmlEdit::Replace(description, description.mKeywords, one, "two") != 0; },
        [&] { return ixAddNew<ix_ns_common_policy_identityType>(conditions, conditions.mIdentityList) != nullptr; },
        [&] { return ixMake(rule.mConditions) != nullptr; },
    };
    for (const auto& change : changes) {
        bool reached = true;
        for (unsigned long failing = 1; reached; ++failing) {
            const auto before = ixDplHostLedger();
            ixDplHostFailAllocation(failing);
            const bool isChanged = change();
            reached = ixDplHostAllocations() >= failing;
            ixDplHostStopCounting();
            ASSERT_EQ(isChanged, !reached) << (&change - changes) << ' ' << failing;
            if (isChanged) break;
            EXPECT_EQ(ixDplHostLedger().liveObjects, before.liveObjects);
            EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, before.liveHeapBlocks);
        }
    }
}

}  // namespace
