/// @file
/// How far the work on a document has come. The process that does it tells the one that waits for it, which has to say
/// what took too long when the time is up.
#ifndef IMSXML_TOOL_PROGRESS_H
#define IMSXML_TOOL_PROGRESS_H

enum class Stage : char { Reading, Decoding, Writing };

class Progress {
  public:
    /// @param pipe write end of a pipe to the process that waits.
    explicit Progress(int pipe) : m_pipe(pipe) {}

    void Enter(Stage stage) const;

  private:
    int m_pipe;
};

/// Waits until the other end of the pipe is closed.
/// @param seconds 0: no limit.
/// @param stage out: the last one that was entered.
/// @return false when the time was up before.
bool WaitForEnd(int pipe, double seconds, Stage& stage);

#endif
