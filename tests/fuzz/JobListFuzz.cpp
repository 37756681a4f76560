#include "FuzzFolder.h"
#include "FuzzInput.h"
#include "lang/MessageTable.h"
#include "link/JobLists.h"
#include "link/OperatorTalk.h"
#include "link/ProgressPanel.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionServices.h"
#include "support/FakeMessageBoxes.h"
#include "support/ScriptedQuestionWindow.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    SessionProperties properties;
    properties.path = fuzz::folder().path();
    SessionErrorRecord error;
    const MessageTable messages;
    ProgressPanel progress;
    tests::ScriptedQuestionWindow question;
    tests::FakeMessageBoxes boxes;
    OperatorTalk talk(progress, question, boxes);
    JobListStore store({properties, error, messages, talk});

    fuzz::folder().write("jobs.lst", input.file());
    fuzz::require(store.load("jobs.lst", true), "an unchecked list is taken as it is");
    const auto count = store.entries().count();
    store.entries().replace(count - 1, "LAST");
    store.entries().remove(count);

    if (!store.load("jobs.lst", false))
        fuzz::require(store.entries().count() == 0, "no half list is left");
    fuzz::require(store.entries().count() <= count, "checking adds nothing");
}
