// A lexer over a text of which the document may have more.
#ifndef TESTS_PLATFORM_XML_WINDOW_OVER_H
#define TESTS_PLATFORM_XML_WINDOW_OVER_H

#include "xml/lexer.h"

struct lexing {
    inv::xml::input in;
    inv::xml::lexer lex;
    const char *at;  // the text's start; goes where a token ends

    // `is_whole`: no more follows, and the lexer knows.
    lexing(std::string_view text, bool is_whole) : in(), lex(), at(nullptr)
    {
        in.open = true;
        in.octets = text.data();
        in.progress.size = text.size();
        inv::xml::open_window(lex.view, in, text.size() + 1);
        at = lex.view.octets;
        inv::xml::refill(lex.view, at);
        if (is_whole)
            inv::xml::refill(lex.view, at);
    }
    lexing(const lexing &) = delete;
    lexing &operator=(const lexing &) = delete;
    ~lexing()
    {
        inv::xml::close_window(lex.view);
    }
    size_t index_of(const char *place) const
    {
        return static_cast<size_t>(place - lex.view.octets);
    }
};

#endif
