// What an application does wrong when it builds a tree is told by both profiles, and the text stays what it was.
#include "XMLCommunicationDiversion.h"
#include "XMLMediaControl.h"
#include "XMLRlmi.h"
#include "XmlDocument.h"
#include "XmlTest.h"

namespace {

class MistakesTest : public XmlTest {
  protected:
    /// A diversion document with a rule, its conditions and its actions.
    static XmlDocument<ix_communication_diversion> NewDocument(eXMLProfile profile) {
        XmlDocument<ix_communication_diversion> document(profile);
        EXPECT_TRUE(document.Create());
        auto* const ruleset = ixMake(document->mRuleset);
        auto* const rule = ixAddNew<ix_ns_common_policy_ruleType>(*ruleset, ruleset->mRuleList);
        rule->setIdValue("r");
        ixMake(rule->mConditions);
        ixMake(rule->mActions);
        return document;
    }
};

TEST_F(MistakesTest, AreTold) {
    const struct {
        const char* name;
        void (*make)(ix_ns_common_policy_ruleset& ruleset, ix_ns_common_policy_ruleType& rule);
        const char* log;      ///< The line of the device profile; NULL: none, as documents may have it so.
        const char* problem;  ///< Of the standard profile; a line of its log behind "log:".
    } rows[] = {
        {"a rule of another class",
         [](ix_ns_common_policy_ruleset& ruleset, ix_ns_common_policy_ruleType&) {
             ruleset.mRuleList->Add(ixNew<ix_string>("test"));
         },
         "<XML Module>: XmlFamilyMarshaller: no place for an object of the class ix_string",
         "<ix_ns_common_policy_ruleset> has no place for an object of the class ix_string"},
        {"a list of other objects handed to a setter",
         [](ix_ns_common_policy_ruleset&, ix_ns_common_policy_ruleType& rule) {
             auto* const list = ixNew<IxSingleElementList>("test");
             list->Add(ixNew<ix_string>("test"));
             rule.mConditions->setIdentityValue(list);
         },
         "<XML Module>: XmlFamilyMarshaller: no place for an object of the class ix_string",
         "<ix_ns_common_policy_conditionsType> has no place for an object of the class ix_string"},
        {"a condition of another class",
         [](ix_ns_common_policy_ruleset&, ix_ns_common_policy_ruleType& rule) {
             rule.mConditions->addOtherCondition(ixNew<ix_list>("test"));
         },
         "<XML Module>: XmlFamilyMarshaller: no place for an object of the class ix_list",
         "<ix_ns_common_policy_conditionsType> has no place for an object of the class ix_list"},
        {"an exception of another class",
         [](ix_ns_common_policy_ruleset&, ix_ns_common_policy_ruleType& rule) {
             auto* const identity =
                 ixAddNew<ix_ns_common_policy_identityType>(*rule.mConditions, rule.mConditions->mIdentityList);
             auto* const many = ixAddNew<ix_ns_common_policy_manyType>(*identity, identity->mManyList);
             ixAddNew<ix_ns_common_policy_exceptType>(*many, many->mExceptList)->setIdValue("x");
             many->mExceptList->Add(ixNew<ix_string>("test"));
         },
         "<XML Module>: XmlFamilyMarshaller: no place for an object of the class ix_string",
         "<ix_ns_common_policy_manyType> has no place for an object of the class ix_string"},
        {"one rule twice",
         [](ix_ns_common_policy_ruleset& ruleset, ix_ns_common_policy_ruleType& rule) { ruleset.addRule(&rule); },
         "<XML Module>: XmlFamilyMarshaller: entry 0 is in its list twice",
         "<ix_ns_common_policy_ruleset> has an entry twice in the list rule"},
        {"a flag that is not present",
         [](ix_ns_common_policy_ruleset&, ix_ns_common_policy_ruleType& rule) {
             auto* const flag = ixNew<ix_empty_element_type>("test");
             flag->setNameValue("busy");
             rule.mConditions->addOtherCondition(flag);
         },
         "Communication_diversionMarshaller::AddEmptyElementtoXml: Received empty present false",
         "log:<XML Module>: XmlWriter: a flag of ix_ns_common_policy_conditionsType is not present, and not written"},
        {"a target that is missing",
         [](ix_ns_common_policy_ruleset&, ix_ns_common_policy_ruleType& rule) {
             rule.mActions->addElement(ixNew<ix_ns_xcap_forward_to_type>("test"));
         },
         nullptr, "<forward-to> has no element target"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        for (const eXMLProfile profile : {IX_XML_PROFILE_DEVICE, IX_XML_PROFILE_STANDARD}) {
            XmlDocument<ix_communication_diversion> document = NewDocument(profile);
            ix_ns_common_policy_ruleset& ruleset = *document->mRuleset;
            auto& rule = *static_cast<ix_ns_common_policy_ruleType*>(ruleset.mRuleList->GetKeyAtIndex(0));
            row.make(ruleset, rule);
            ClearLog();
            const std::string text = document.Write() != nullptr ? document.Write() : "";
            if (profile == IX_XML_PROFILE_DEVICE) {
                EXPECT_FALSE(text.empty());
                EXPECT_TRUE(row.log == nullptr || Logged(row.log));
            } else if (std::strncmp(row.problem, "log:", 4) == 0) {
                EXPECT_FALSE(text.empty());
                EXPECT_TRUE(Logged(row.problem + 4));
            } else {
                EXPECT_STREQ(document.Problem(), row.problem);
            }
            // What is in twice would be deleted twice.
            if (ruleset.mRuleList->GetCount() == 2 && ruleset.mRuleList->LastNode()->key == &rule) {
                ruleset.mRuleList->Remove(&rule);
            }
        }
    }
}

}  // namespace
