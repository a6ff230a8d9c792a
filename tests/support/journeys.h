#pragma once

// How often the program has waited for its server. What is sent before an answer is asked for goes together and is one
// journey there and back, however much it is and whenever its answers come; an answer that nobody asks for costs none. So
// the figures are the same on every machine. Counted are the connection that sends first once an object is there, and the
// thread that made it. Linked into a program, this stands in the places of the client library's functions.
class Journeys
{
public:
    Journeys();
    ~Journeys();
    Journeys(const Journeys &) = delete;
    Journeys &operator=(const Journeys &) = delete;

    int take(); // since this was last asked

private:
    int m_taken = 0;
};
