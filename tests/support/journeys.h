#pragma once

// How often the program has waited for its server. What is sent before an answer is asked for goes together and is one
// journey there and back, however much it is and whenever its answers come; an answer that nobody asks for costs none. So
// the figures are the same on every machine. Counted are the connection that sends first once an object is there, and the
// thread that made it. Linked into a program, this stands in the places of the client library's functions. With
// TALLYMERE_TEST_JOURNEYS set, what is sent is printed, with a line at each wait.
class Journeys
{
public:
    Journeys();
    ~Journeys();
    Journeys(const Journeys &) = delete;
    Journeys &operator=(const Journeys &) = delete;

    // Since this was last asked. What they were for is printed with them.
    int take(const char *what);

private:
    int m_taken = 0;
};
