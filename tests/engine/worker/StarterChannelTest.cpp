#include "worker/StarterChannel.h"
#include "protocol/ProtocolError.h"

#include <gtest/gtest.h>

#include <array>
#include <future>

#include <fcntl.h>
#include <unistd.h>

namespace orvane::worker {
namespace {

using namespace protocol;
using namespace std::chrono_literals;
using ForcedEnd = StarterChannel::ForcedEnd;

constexpr auto kLong = 20s;

/// Plays the starter: holds the other ends of a channel's two pipes.
class StarterChannelTest : public testing::Test {
protected:
    StarterChannelTest() {
        EXPECT_EQ(pipe(m_input.data()), 0);
        EXPECT_EQ(pipe(m_output.data()), 0);
        m_channel = std::make_unique<StarterChannel>(m_input[0], m_output[1]);
    }
    ~StarterChannelTest() override {
        m_channel.reset();
        closeInput();
        close(m_output[0]);
    }

    void say(const std::string& text) { ASSERT_EQ(write(m_input[1], text.data(), text.size()), ssize_t(text.size())); }
    void closeInput() {
        if (m_input[1] >= 0)
            close(m_input[1]);
        m_input[1] = -1;
    }
    /// What the channel has sent so far; the channel is closed by it.
    std::string heard() {
        m_channel.reset();
        return hear();
    }
    /// Reads until the channel closes its end.
    std::string hear() const {
        std::string text;
        std::array<char, 4096> buffer;
        for (ssize_t count; (count = read(m_output[0], buffer.data(), buffer.size())) > 0;)
            text.append(buffer.data(), static_cast<std::size_t>(count));
        return text;
    }
    void watch(WhenStarterEnds whenStarterEnds, std::chrono::seconds limit = 3600s) {
        m_channel->watch(whenStarterEnds, limit, [this](ForcedEnd reason) { m_forcedEnd.set_value(reason); });
    }
    bool isCancelledSoon() const {
        const auto end = std::chrono::steady_clock::now() + kLong;
        while (!m_channel->isCancelled() && std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        return m_channel->isCancelled();
    }

    std::array<int, 2> m_input{-1, -1};
    std::array<int, 2> m_output{-1, -1};
    std::unique_ptr<StarterChannel> m_channel;
    std::promise<ForcedEnd> m_forcedEnd;
};

TEST_F(StarterChannelTest, ReadsTheJob) {
    Job job;
    job.source = "a.pdf";
    say(encodeJob(job) + "\n");
    EXPECT_EQ(m_channel->readJob().source, "a.pdf");
}

TEST_F(StarterChannelTest, RefusesWhatIsNoJob) {
    say("hello\n");
    EXPECT_THROW(m_channel->readJob(), ProtocolError);
}

TEST_F(StarterChannelTest, RefusesAnInputThatEndsTooEarly) {
    say(encodeJob(Job{}).substr(0, 20));
    closeInput();
    EXPECT_THROW(m_channel->readJob(), ProtocolError);
}

TEST_F(StarterChannelTest, HearsACancel) {
    watch(WhenStarterEnds::Finish);
    EXPECT_FALSE(m_channel->isCancelled());
    say("something else\ncan");
    say("cel\n");
    EXPECT_TRUE(isCancelledSoon());
}

TEST_F(StarterChannelTest, StopsWithItsStarter) {
    watch(WhenStarterEnds::Stop);
    closeInput();
    EXPECT_TRUE(isCancelledSoon());
}

TEST_F(StarterChannelTest, OutlivesItsStarterWhenToldTo) {
    watch(WhenStarterEnds::Finish, 1s);
    closeInput();
    // The time limit comes later than the end of the input, so by then the latter has been noticed.
    EXPECT_EQ(m_forcedEnd.get_future().get(), ForcedEnd::TimeOver);
    EXPECT_FALSE(m_channel->isCancelled());
}

TEST_F(StarterChannelTest, ForcesTheEndWhenACancelIsIgnored) {
    const auto start = std::chrono::steady_clock::now();
    watch(WhenStarterEnds::Stop);
    say("cancel\n");
    EXPECT_EQ(m_forcedEnd.get_future().get(), ForcedEnd::CancelIgnored);
    EXPECT_GE(std::chrono::steady_clock::now() - start, kCancelGrace);
}

TEST_F(StarterChannelTest, CancelsWhenTheStarterTalksNonsense) {
    watch(WhenStarterEnds::Finish);
    std::thread flood([this] { say(std::string(kMaxLineLength + 1, 'x')); });
    EXPECT_TRUE(isCancelledSoon());
    flood.join();
}

TEST_F(StarterChannelTest, LeavesOutWhatIsNotListenedTo) {
    for (int i = 0; i < 10000; ++i)
        m_channel->offer(StatusReport{JobStage::Page, i, 0});
    LineSplitter lines(kMaxLineLength);
    lines.add(heard());
    int count = 0;
    while (const auto line = lines.next())
        EXPECT_EQ(std::get<StatusReport>(decodeMessage(*line)).first, count++) << "no line is torn";
    EXPECT_GT(count, 100);
    EXPECT_LT(count, 10000);
}

TEST_F(StarterChannelTest, DeliversWhatHasToArrive) {
    auto received = std::async(std::launch::async, [this] { return hear(); });
    for (int i = 0; i < 5000; ++i)
        m_channel->deliver(PageReport{i, 0, 0, 0, ""});
    m_channel.reset();
    LineSplitter lines(kMaxLineLength);
    lines.add(received.get());
    int count = 0;
    while (lines.next())
        ++count;
    EXPECT_EQ(count, 5000);
}

} // namespace
} // namespace orvane::worker
