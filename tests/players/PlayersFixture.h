#pragma once
// The player dialog's rules over a temporary data file that knows the players "Cy", "1up" and
// "bob", with message boxes answered by `answer` and recorded.
#include <algorithm>

#include "../store/DataFileFixture.h"
#include "PlayerSelection.h"

class PlayersTest : public DataFileFixture {
public:
    void SetUp() override
    {
        DataFileFixture::SetUp();
        MakeFreshFile();
        Sql("INSERT INTO Player (PlayerName) VALUES ('Cy'), ('1up'), ('bob')");
        SetMsgBoxHandler([this](const std::string& text, int style, const std::string& title) {
            messages.emplace_back(text, style, title);
            return answer;
        });
    }
    // Seats the players, as the dialog opens on them.
    void Load(const Names& players)
    {
        gPlayerNames.ReDim(int(players.size()));
        for (int j = 1; j <= gPlayerNames.UBound(); ++j)
            gPlayerNames[j] = players[j - 1];
        dialog.Form_Load();
    }
    void Pick(int box, const std::string& value)
    {
        const auto& list = dialog.cboPlayer[box].List;
        dialog.SetListIndex(box, int(std::find(list.begin(), list.end(), value) - list.begin()));
    }

    static Names Seated()
    {
        Names names;
        for (int j = 1; j <= gPlayerNames.UBound(); ++j)
            names.push_back(gPlayerNames[j]);
        return names;
    }

    PlayerSelection dialog;
    int answer = vbYes;
};
