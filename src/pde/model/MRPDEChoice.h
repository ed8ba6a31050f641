#pragma once
#include <QString>
#include <memory>

struct ppd_choice_s;

// A libcups choice as the standalone panels' pop-ups see it: its text (the
// user title, UTF-8) and keyword (the PPD title, ASCII), each decoded on
// first use and kept once made, and whether it is its option's default.
// The record does not own the choice; the choice lives as long as its PPD.
//
// Each record class is set up once, when it is first used: the PPD text
// encoding is fixed then and logged as "Encoding set as 4".
class MRPDEChoice {
public:
    static std::shared_ptr<MRPDEChoice> choiceWithChoice(ppd_choice_s* choice);
    explicit MRPDEChoice(ppd_choice_s* choice);
    virtual ~MRPDEChoice();

    // The process-wide encoding of PPD texts (4, UTF-8).
    static int ppdEncoding();

    // The choice's text; null (and logged, on every call that fails) when it
    // cannot be decoded, in which case the next call tries again.
    QString userTitle() const;
    // The choice keyword; null (and logged) when it is not ASCII.
    QString ppdTitle() const;
    ppd_choice_s* choice() const { return m_choice; }
    // Whether the keyword equals the option's default keyword (over at most
    // 41 bytes, the width of both libcups fields).
    bool isDefaultChoice() const;
    // <MRPDEChoice 0x... userTitle:"..." ppdTitle:"..." marked:NO choice:2 of 3>
    QString description() const;

protected:
    // For record classes built on this one: their own name, set up once on
    // their own first use.
    MRPDEChoice(ppd_choice_s* choice, const char* className);
    virtual const char* className() const { return "MRPDEChoice"; }

private:
    void initialize(ppd_choice_s* choice, const char* className);
    mutable QString m_userTitle;
    mutable QString m_ppdTitle;
    ppd_choice_s* m_choice = nullptr;
};
