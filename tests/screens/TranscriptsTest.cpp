#include "TranscriptHouse.h"
#include "testing/Golden.h"

#include <sstream>

#include <gtest/gtest.h>

// Each file under data is an account and a dialogue about it: after ">" what is asked or done, then the
// answer, which is indented.

namespace vantrell {
namespace {

TEST(Transcripts, AreWhatTheScreensAnswer) {
    for (const auto& file : testing::filesIn(VANTRELL_TEST_DATA, ".transcript")) {
        SCOPED_TRACE(file);
        testing::TranscriptHouse house{testing::AccountFile(file)};
        std::istringstream lines(testing::fileText(file));
        std::string said;
        bool isDialogue = false;
        for (std::string line; std::getline(lines, line);) {
            const bool isAsked = line.starts_with("> ");
            isDialogue = isDialogue || isAsked;
            if (isAsked) {
                said += line + "\n" + house.answer(QString::fromStdString(line.substr(2)));
            } else if (!isDialogue || !line.starts_with("    ")) {
                said += line + "\n";
            }
        }
        testing::expectMatchesFile(said, file);
    }
}

}  // namespace
}  // namespace vantrell
