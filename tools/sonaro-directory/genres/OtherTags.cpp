#include "genres/GenreTable.h"

namespace sonaro {
namespace {

constexpr GenreLine kOtherLines[] = {
    // Decades & Oldies
    {'o', "",
     "oldies|oldie|goldies|golden oldies|retro|nostalgia|nostalgie|evergreens|evergreen|"
     "oldies but goldies|gold|gold music|golden|golden music|classics|clasicos|classic hits|retro hits|"
     "greatest hits|ретро|ретро музыка|musica del recuerdo|recuerdos|recuerdo|vintage|vintage music|"
     "oldschool|old school|old skool|throwbacks|flashback|retro music|goldies oldies|los clasicos|"
     "clasicos en ingles|clasicos en espanol|pop clasico|old hits|classic pop|classic oldies|decades|"
     "nostalgic|anni 60 70 80|all time classics|only the golden classics|classic gold|goud van oud|"
     "gouwe ouwe|éxitos del ayer|hits of yesterday|70 80 hits|musica de ayer|del recuerdo|variety hits|"
     "adult hits|classic hits 60s 70s 80s|classic hits 60s 70a 80s|clasicos en espanol e ingles|"
     "remember|memories|100 golden oldies|ретро хиты|classic"},
    {'o', "Before 1950", "1920s|1930s|1940s|30s|40s|20s 30s 40s|20s|1920|1930|1940|pre war|20s 30s|1910s"},
    {'o', "50s", "50s|1950s|50er|1950|oldies 50s 60s|50s 60s|1950s and 1960s|fifties"},
    {'o', "60s",
     "60s|1960s|60er|sixties|60|1960|the beatles|beatles|british invasion|años 60|anni 60|"
     "oldies 50s 60s|60s 70s|1960s and 1970s|60s oldies|annees 60"},
    {'o', "70s",
     "70s|1970s|70er|70|1970|seventies|hits 70s|años 70|anni 70|70s hits|annees 70|60s 70s|70s 80s|70e|"
     "70s 80s 90s"},
    {'o', "80s",
     "80s|1980s|80er|80|1980|eighties|hits 80s|años 80|anni 80|80s hits|80s radio|anos 80|1980s hits|"
     "the best of 80s|all 80s|80s en espanol|80s music|80s pop|annees 80|musica anni 80|80th|"
     "70s 80s 90s|70s 80s|80s 90s|new classics 80s|lata 80|die 80er"},
    {'o', "90s",
     "90s|1990s|90er|90|1990|nineties|hits 90s|años 90|anni 90|90s hits|90s music|90s y mas|anos 90|"
     "annees 90|80s 90s|90s pop|classic 90s|70s 80s 90s|die 90er"},
    {'o', "2000s", "2000s|00s|2000er|2000|00er|hits 2000|años 2000|anos 2000|early 2000s|2k|y2k|nuller"},
    {'o', "2010s & 2020s", "2010s|10s|2010er|2020s|2020er|2010|2020|new classics"},
    // Pop & Hits
    {'p', "",
     "pop|greek pop|italian pop|russian pop|french pop|romanian pop|polish pop|turkish pop|tamil pop|"
     "pop music|hits|musica pop|pop hits|поп|поп музыка|popular|popmusik|pop musik|popular music|"
     "pop en ingles|musica en ingles|mainstream|hit|charts|hit music|mainstream pop|indie pop hits|"
     "euro pop|europop|soft pop|teen pop|pop divas|hits music|mainstream hits|hit radio|party|"
     "party hits|partyhits|pop mix|pop dance|dance pop|exitos|éxitos|mix pop|pop muzyka|muzyka pop|"
     "alternative pop|anglo|流行|流行音乐|pop internacional|variété|variete|energy|contemporary|todays hits|"
     "new music|hit music only|puros exitos|today|only hits|hot hits|hits fm|musica popular|partymusik|"
     "pop radio|solo musica|best music|europe hits|popularna|zabavna muzika|neue musik"},
    {'p', "Adult Contemporary",
     "adult contemporary|hot adult contemporary|ac|hot ac|soft adult contemporary|soft ac|adulta|"
     "adulto contemporaneo|contemporanea|modern adult contemporary|adult|adulto|modern ac|mainstream ac|"
     "adult pop|adult top 40"},
    {'p', "Top 40 & Charts",
     "top 40|top40|top hits|top charts|contemporary hits|contemporary hits radio|contemporary hit radio|"
     "chr|top 100|top100|top|top 40 hits|chart|dance top40|top 40 pop|top 50|chr top 40|hitparade|"
     "hit parade|best hits|newcomer|top 20|hot 100|new releases|current hits"},
    {'p', "German Pop", "deutschpop|german pop|deutsche musik|deutsch pop|austropop|deutsche hits"},
    // News & Talk
    {'n', "",
     "news talk|talk|talk radio|talk speech|talkshow|talk show|noticias|news|hablada|radio hablada|"
     "speech|news talk music|talk shows|talks|talk show radio|разговорное|разговорный|vox|"
     "talk and speech|talkback|news talk information|информационное|news and talk|nachrichten talk|"
     "talk news|crosstalk|musica y noticias|noticias y musica|news music|interviews|entrevistas|"
     "interview|commentary|general interest talk|generalist|full service|magazine|magazines|actualidad|"
     "info|information|informacion|informativa|informations|infos|новостное|новости|新闻|综合|"
     "radio informativa|features|podcast|podcasts|actualite|debate|opinion|noticieros|noticias opinion|"
     "noticias en espanol|noticias nacionales e internacionales|noticias y comentarios|noticias cortas|"
     "notícias|nachrichten|news radio|all news|informacion y noticias"},
    {'n', "Business",
     "business|business news|economics|economy|finance|financial|wirtschaft|economic news|economia"},
    {'n', "Local News",
     "local news|noticias locales|local information|regional news|local talk|local programming|local|"
     "regional|local government|lokalne|news local|regionaal|local radio news|local weather|"
     "regional radio"},
    {'n', "Politics",
     "politics|political|political talk|politica|conservative talk|conservative|"
     "politics current affairs|current affairs|progressive talk|politik|left wing|government|"
     "national affairs|patriot|liberal"},
    {'n', "Conspiracy & Paranormal", "conspiracy|conspiracy theories|paranormal|conspiracies|ufo|mysteries"},
    {'n', "Traffic & Weather",
     "traffic|weather|traffic information|local traffic weather|verkehr|meteo|noaa|noaa weather radio|"
     "traffic radio broadcast|weather radio|weather alerts"},
    {'n', "Scanners & Emergency",
     "scanner|police scanner|fire scanner|ems scanner|police|emergency public safety|public safety|fire|"
     "air traffic|atc|aviation|ems|emergency"},
    {'n', "World News",
     "world news|international news|national news|bbc world service|rfe rl|foreign|voice of america|"
     "world service"},
    // Religious
    {'t', "",
     "religious|religion|spiritual|religioso|religiosa|religous|fe|faith|musica religiosa|inspirational|"
     "interfaith|religión|espiritual|religieux|geistlich"},
    {'t', "Bible & Teaching",
     "bible|christian talk|christian teaching|sermons|biblia|bibel|bible teaching|preaching|predicas|"
     "biblical|mensajes cristianos|expository preaching|scripture|theology"},
    {'t', "Buddhist & Hindu",
     "buddhism|hindu|bhajan|devotional|buddhist|krishna|bhakti|hinduism|gurbani|sikh|kirtan"},
    {'t', "Catholic",
     "catholic|catolica|católica|catholic radio|katholik|katholisch|catholique|radio maria|rosary|"
     "katholic|ewtn|cattolica|katolik|catolico|cattolici|katolickie|chrétienne"},
    {'t', "Christian",
     "christian|cristiana|christian music|radio cristiana|evangelio|christianity|cristiano|"
     "christian radio|cristian|evangelical|adventist|church|pentecostalism|kristen|media kristen|"
     "musica cristiana|jesus|christlich|ecclesia|online christian radio|chirstian|evangelica|chretien|"
     "chrétien|protestant|crestina|muzica crestina|baptist|gospel evangélica|messianic|"
     "spanish christian|evangelisch|kristendom|хрис тианское|христианское|christian programming|"
     "evangelico|evangélica|adventista"},
    {'t', "Christian Music & Worship",
     "contemporary christian|christian contemporary|praise|worship|ccm|praise and worship|"
     "praise worship|christian praise worship|alabanza|alabanzas|christian rock|christian hits|"
     "adoracion|worship music|christian pop|louvor|christian hip hop|alabanza y adoracion|"
     "contemporary christian music"},
    {'t', "Gospel",
     "gospel|southern gospel|gospel music|christian gospel|black gospel|urban gospel|country gospel|"
     "gospel radio|traditional gospel|bluegrass gospel"},
    {'t', "Islamic",
     "islamic|islam|quran|koran|muslim|quran radio|القرآن|القرآن الكريم|راديو القرآن|sunnah|ilahi|"
     "holy quran|قرآن|islamique|nasheed|إسلامي|quraan|islami"},
    {'t', "Jewish", "jewish|hebrew|judaism|torah|yiddish|דתי|klezmer"},
    {'t', "Orthodox",
     "orthodox|orthodox christian|christian orthodox|ορθοδοξία|orthodoxy|orthodox church|byzantine|"
     "εκκλησία|ιερά μητρόπολις|χριστιανισμός|православие|ортодокс|православное|ορθόδοξος|bisericeasca"},
    // Community & Campus
    {'u', "",
     "community radio|community|radio comunitaria|comunitaria|local radio|radio comunitarias|"
     "radios comunitarias|comunitario|radio associative|radio communautaire|lokalradio|freies radio|"
     "bürgerradio|nicht kommerzielles lokalradio|non commercial|non profit|volunteer|"
     "community supported radio station|comunity|freeform|free radio|pirate|radio libre|associative|"
     "comunitária|free form|freier rundfunk|rsl|grassroots|radio locale|community news|local music|"
     "local radio stations"},
    {'u', "Campus & Student",
     "college radio|university radio|student radio|college|campus radio|university|student|"
     "radio universitaria|universitaria|radio universidad|universidad|student managed|universitaire|"
     "radio campus|studentenradio|uniradio|hochschulradio|students"},
    {'u', "Hospital & Inclusive",
     "hospital radio|lgbt|gay|queer|lgbtiqa|lgbtq|pride|minority|women|feminist"},
    {'u', "Indigenous",
     "indigenous|indigenous music|native american|iwi|aboriginal|first nations|indigena|"
     "sistema de radiodifusoras culturales indigenas|instituto nacional de los pueblos indigenas"},
    {'u', "Public Radio",
     "public radio|ert|rtbf|rtvs|polskieradio|polskie radio|cesky rozhlas|instituto mexicano de la "
     "radio|gbh|public|npr|publica|radio publica|public service|pri|apm|radio publique|radio france|"
     "ard|bbc|pbs|prx|radio pública|concesion publica|pública|minnesota public radio|vrt|rai|"
     "sveriges radio|srg ssr"},
    // Variety
    {'v', "",
     "variety|various|varied|variada|variado|musica variada|variedad|variedades|misc|miscellaneous|mix|"
     "mixed|eclectic|various music|varios|variados|music variety|mixed music|general|разная музыка|"
     "смешанный|international|gemischt|alles|bunt gemischt|entretenimiento|musique variee|eclectica|"
     "eclectic programming|a bit of everything|allerlei|all genres|multi genre|diverse|all music|"
     "eclética|eclético|músicas variadas|variety music|various styles|tout|everything|mixx|24 7 music|"
     "musica varia|various genres|multikulti mix"},
    {'v', "Multicultural",
     "multicultural|multilingual|ethnic programming|multikulti|diversity|multi cultural|cosmopolitan"},
    // Children & Family
    {'k', "",
     "kids|children|kinder|child|family|familia|niños|infantil|enfants|childrens music|детское|детская|"
     "disney|radio disney|kids music|bambini|familie|family friendly|teens|детям"},
    {'k', "Fairy Tales & Songs",
     "kinderlieder|fairytales|fairy tales|hörspiel|kinderhörspiel|marchen|сказки|lullabies|lullaby|"
     "cuentos"},
    // Comedy & Stories
    {'q', "", "entertainment|unterhaltung|spoken word|storytelling|infotainment"},
    {'q', "Comedy", "comedy|humor|humour|юмор|british comedy|comedia|stand up|funny|humorous"},
    {'q', "Drama & Old-Time Radio",
     "drama|old time radio|otr|radio drama|science fiction|mystery|radio theater|vintage radio|crime|"
     "sci fi|theatre|theater|horror|oldtime radio"},
    {'q', "Readings & Poetry",
     "poetry|reading|audiobooks|audiobook|books|poesia|radio reading service|"
     "radio for the print handicapped|blind"},
    // Culture & Education
    {'2', "",
     "culture|cultura|cultural|kultur|arts|art|culturel|radio cultural|kunst|культура|society|sociedad|"
     "cultural news|arts and culture"},
    {'2', "Education & Science",
     "education|educational|educativa|science|technology|educacion|radio educacion|history|health|tech|"
     "linux|nature and science|agriculture|agro|salud|образование|wissen"},
    {'2', "Literature & Lifestyle",
     "literature|lifestyle|literatura|travel|tourism|fashion|food|cinema|motivational|self help|"
     "wellbeing"},
    // Sports
    {'1', "",
     "sports|sport|deportes|deporte|sports talk|live sports|sports news|esportes|debates y deportes|"
     "noticias y deportes|sports radio|deportiva|sports commentary|спорт|espn|espn radio|all sports|"
     "sports talk radio|local sports"},
    {'1', "American Football & Baseball",
     "ncaa football|nfl|baseball|mlb|college football|college sports|american football|nba|basketball|"
     "hockey|nhl"},
    {'1', "Football",
     "football|futbol|soccer|futebol|fussball|bundesliga|calcio|esportes futebol|premier league|fútbol|"
     "voetbal|foot"},
    {'1', "Motor Sports", "motorsport|racing|formula 1|nascar|f1"},
    // Soundtracks, Games & Anime
    {'0', "Anime & J-Pop",
     "anime|jpop|j pop|jrock|j rock|japanese|japanese music|anime openings|anime radio|vocaloid|"
     "city pop|anison|manga|vtuber"},
    {'0', "Musicals", "musicals|musical|broadway|show tunes|showtunes|cabaret|musical theatre"},
    {'0', "Soundtracks",
     "soundtrack|soundtracks|film music|movie soundtracks|movie|film|movies|filmmusik|ost|film score|"
     "cinematic|epic|movie music|bandas sonoras|filmscore|scores|musique de film|саундтрек|epic music|"
     "trailer music"},
    {'0', "Video Games",
     "video game music|videogame music|video game|gaming|games|game|retro games|game music|vgm|nintendo|"
     "fallout|gta|gamer|videogames|game soundtracks|mlp|brony|fan music|"
     "my little pony friendship is magic|fandom"},
    // Holiday
    {'i', "Christmas",
     "christmas|christmas music|xmas|x mas|weihnachten|weihnachtslieder|navidad|christmas songs|noel|"
     "klassik weihnachten christmas|weihnachtsmusik|natale|рождество|holiday music|christmas radio|"
     "holiday music nov dec|kerst|kerstmuziek|santa|navideña"},
    {'i', "Other Seasons",
     "holiday|seasonal|seasonal holiday|karneval|fasching|summer|carnaval|halloween|summer tunes|"
     "carnival music|easter|fiesta patria|valentine"},
};

}  // namespace

std::span<const GenreLine> OtherTags() { return kOtherLines; }

}  // namespace sonaro
