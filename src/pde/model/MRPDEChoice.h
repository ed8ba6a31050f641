#pragma once
#include <QString>
#include <memory>

struct ppd_choice_s;

// A libcups choice as the standalone panels' pop-ups see it: its text (the
// user title) and keyword (the PPD title), decoded on first use, and whether
// it is its option's default.
class MRPDEChoice {
public:
    static std::shared_ptr<MRPDEChoice> choiceWithChoice(ppd_choice_s* choice);
    explicit MRPDEChoice(ppd_choice_s* choice);
    virtual ~MRPDEChoice();

    // The process-wide encoding of PPD texts (4, UTF-8).
    static int ppdEncoding();

    QString userTitle();
    QString ppdTitle();
    ppd_choice_s* choice() const { return m_choice; }
    bool isDefaultChoice() const;
    QString description();

protected:
    MRPDEChoice(ppd_choice_s* choice, const char* className);
    virtual const char* className() const { return "MRPDEChoice"; }

private:
    void initialize(ppd_choice_s* choice, const char* className);
    QString m_userTitle;
    QString m_ppdTitle;
    ppd_choice_s* m_choice = nullptr;
};
