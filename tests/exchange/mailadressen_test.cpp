// The addresses of players, and the links that hand them to a mail program.
#include "exchange/mailadressen.h"

#include "exchange/uitvoerproef.h"

using namespace plexoran;

namespace {

using Teksten = std::vector<Tekst>;

Spelertabel Met(const Teksten& adressen)
{
    std::vector<Cellen> spelers;
    for (const Tekst& adres : adressen)
        spelers.push_back({{Kolom::Email, adres}});
    return MaakSpelers(spelers);
}

} // namespace

TEST(Mailadressen, EenAdresIsTeZienAanZijnVorm)
{
    for (const Tekst adres :
         {"jan@club.nl", "j.de.vries+bridge@mail.club.nl", "a@b.c", "'jan'@b.nl"})
        EXPECT_TRUE(IsMailadres(adres)) << adres;
    for (const Tekst adres :
         {"", "jan", "jan@club", "@club.nl", "jan@.nl", "jan@club.nl.", "jan@@club.nl",
          "jan@club@nl.nl", "jan @club.nl", "jan@club.nl,an@club.nl", "jan@club.nl;an@club.nl",
          "<jan@club.nl>", "mailto:jan@club.nl", "jan@club.nl\xA0", "jan\t@club.nl", "jan@"})
        EXPECT_FALSE(IsMailadres(adres)) << adres;
    EXPECT_TRUE(IsMailadres(Tekst(249, 'a') + "@b.nl"));
    EXPECT_FALSE(IsMailadres(Tekst(250, 'a') + "@b.nl"));
}

TEST(Mailadressen, ElkAdresEenKeerEnWieErGeenHeeft)
{
    const Spelertabel tabel = Met({"Jan@Club.nl", "", "an@club.nl", " jan@club.NL ",
                                   "an(at)club.nl", "ren\xE9@x.nl", "REN\xC9@x.nl", "buiten@x.nl"});
    const auto wie = MailadressenVan(tabel, std::vector{1, 2, 3, 4, 5, 6, 7});
    EXPECT_EQ((Teksten{"Jan@Club.nl", "an@club.nl", "ren\xE9@x.nl"}), wie.adressen);
    EXPECT_EQ((std::vector{2, 5}), wie.zonder);
    EXPECT_EQ((Teksten{"an@club.nl", "jan@club.NL"}),
              MailadressenVan(tabel, std::vector{3, 4}).adressen);
}

TEST(Mailadressen, DeLinkIsGecodeerd)
{
    const auto mails = MaakMails(Teksten{"jan@club.nl", "a+b&c=?#%d@x-y_z.nl", "ren\xE9@x.nl"}, 50);
    ASSERT_EQ(1U, mails.size());
    EXPECT_EQ("mailto:?bcc=jan@club.nl,a%2Bb%26c%3D%3F%23%25d@x-y_z.nl,ren%C3%A9@x.nl",
              mails[0].link);
    EXPECT_EQ(3U, mails[0].adressen);
}

TEST(Mailadressen, InPortiesVanZoveel)
{
    const auto mails = MaakMails(Teksten{"a@x.nl", "b@x.nl", "c@x.nl", "d@x.nl", "e@x.nl"}, 2);
    ASSERT_EQ(3U, mails.size());
    EXPECT_EQ("mailto:?bcc=a@x.nl,b@x.nl", mails[0].link);
    EXPECT_EQ("mailto:?bcc=c@x.nl,d@x.nl", mails[1].link);
    EXPECT_EQ("mailto:?bcc=e@x.nl", mails[2].link);
    EXPECT_EQ(1U, mails[2].adressen);
    EXPECT_TRUE(MaakMails({}, 2).empty());
}

TEST(Mailadressen, EenLangeLinkMaaktDePortieKleiner)
{
    const Tekst adres = Tekst(91, 'a') + "@club.nl"; // 99; with its comma 100
    const auto mails = MaakMails(Teksten(40, adres), 100);
    ASSERT_EQ(3U, mails.size());
    EXPECT_EQ(19U, mails[0].adressen); // 12 + 19 * 100 - 1
    EXPECT_EQ(1911U, mails[0].link.size());
    EXPECT_EQ(2U, mails[2].adressen);
    const Tekst precies = Tekst(80, 'a') + "@club.nl"; // 88 more: 2000
    Teksten vol(19, adres);
    vol.push_back(precies);
    EXPECT_EQ(2000U, MaakMails(vol, 100).at(0).link.size());
    vol.back() = 'a' + precies;
    EXPECT_EQ(2U, MaakMails(vol, 100).size());
}
