#include "genres/GenreTable.h"

namespace sonaro {
namespace {

constexpr Genre kGenres[] = {
    {'a', "Alternative & Indie", "genre-alternative"},
    {'b', "Blues", "genre-blues"},
    {'c', "Classical", "genre-classical"},
    {'d', "Country & Americana", "genre-country"},
    {'e', "Dance & Electronic", "genre-electronic"},
    {'f', "Easy Listening & Chillout", "genre-easy"},
    {'g', "Folk & Traditional", "genre-folk"},
    {'h', "Hip-Hop, R&B & Soul", "genre-urban"},
    {'i', "Holiday", "genre-holiday"},
    {'j', "Jazz", "genre-jazz"},
    {'k', "Children & Family", "genre-children"},
    {'l', "Latin", "genre-latin"},
    {'m', "Metal & Hard Rock", "genre-metal"},
    {'n', "News & Talk", "genre-talk"},
    {'o', "Decades & Oldies", "genre-decades"},
    {'p', "Pop & Hits", "genre-pop"},
    {'q', "Comedy & Stories", "genre-stories"},
    {'r', "Reggae & Caribbean", "genre-reggae"},
    {'s', "Rock", "genre-rock"},
    {'t', "Religious", "genre-religious"},
    {'u', "Community & Campus", "genre-community"},
    {'v', "Variety", "genre-variety"},
    {'w', "World", "genre-world"},
    {'x', "Regional Mexican", "genre-mexican"},
    {'y', "Schlager & Volksmusik", "genre-schlager"},
    {kOtherGenre, "Other", "genre-other"},
    {'0', "Soundtracks, Games & Anime", "genre-soundtracks"},
    {'1', "Sports", "genre-sports"},
    {'2', "Culture & Education", "genre-culture"},
};

constexpr GenreLine kLines[] = {
    // Children & Family
    {'k', "",
     "kids|children|kinder|child|family|familia|niños|infantil|enfants|childrens "
     "music|детское|детская|disney|radio disney|kids music|bambini|familie|family friendly|teens|детям"},
    {'k', "Fairy Tales & Songs",
     "kinderlieder|fairytales|fairy tales|hörspiel|kinderhörspiel|marchen|сказки|lullabies|lullaby|cuentos"},
    // Comedy & Stories
    {'q', "", "entertainment|unterhaltung|spoken word|storytelling|infotainment"},
    {'q', "Comedy", "comedy|humor|humour|юмор|british comedy|comedia|stand up|funny|humorous"},
    {'q', "Drama & Old-Time Radio",
     "drama|old time radio|otr|radio drama|science fiction|mystery|radio theater|vintage radio|crime|sci "
     "fi|theatre|theater|horror|oldtime radio"},
    {'q', "Readings & Poetry",
     "poetry|reading|audiobooks|audiobook|books|poesia|radio reading service|radio for the print "
     "handicapped|blind"},
    // Community & Campus
    {'u', "",
     "community radio|community|radio comunitaria|comunitaria|local radio|radio comunitarias|radios "
     "comunitarias|comunitario|radio associative|radio communautaire|lokalradio|freies "
     "radio|bürgerradio|nicht kommerzielles lokalradio|non commercial|non profit|volunteer|community "
     "supported radio station|comunity|freeform|free radio|pirate|radio libre|associative|comunitária|free "
     "form|freier rundfunk|rsl|grassroots|radio locale|community news"},
    {'u', "Campus & Student",
     "college radio|university radio|student radio|college|campus radio|university|student|radio "
     "universitaria|universitaria|radio universidad|universidad|student managed|universitaire|radio "
     "campus|studentenradio|uniradio|hochschulradio|students"},
    {'u', "Hospital & Inclusive",
     "hospital radio|lgbt|gay|queer|lgbtiqa|lgbtq|pride|minority|women|feminist"},
    {'u', "Indigenous",
     "indigenous|indigenous music|native american|iwi|aboriginal|first nations|indigena|sistema de "
     "radiodifusoras culturales indigenas|instituto nacional de los pueblos indigenas"},
    {'u', "Public Radio",
     "public radio|public|npr|publica|radio publica|public service|pri|apm|radio publique|radio "
     "france|ard|bbc|pbs|prx|radio pública|concesion publica|pública|minnesota public radio|vrt|rai|sveriges "
     "radio|srg ssr"},
    // Culture & Education
    {'2', "",
     "culture|cultura|cultural|kultur|arts|art|culturel|radio "
     "cultural|kunst|культура|society|sociedad|cultural news|arts and culture"},
    {'2', "Education & Science",
     "education|educational|educativa|science|technology|educacion|radio "
     "educacion|history|health|tech|linux|nature and science|agriculture|agro|salud|образование|wissen"},
    {'2', "Literature & Lifestyle",
     "literature|lifestyle|literatura|travel|tourism|fashion|food|cinema|motivational|self help|wellbeing"},
    // Decades & Oldies
    {'o', "",
     "oldies|oldie|goldies|golden oldies|retro|nostalgia|nostalgie|evergreens|evergreen|oldies but "
     "goldies|gold|gold music|golden|golden music|classics|clasicos|classic hits|retro hits|greatest "
     "hits|ретро|ретро музыка|musica del recuerdo|recuerdos|recuerdo|vintage|vintage music|oldschool|old "
     "school|old skool|throwbacks|flashback|retro music|goldies oldies|los clasicos|clasicos en "
     "ingles|clasicos en espanol|pop clasico|old hits|classic pop|classic oldies|decades|nostalgic|anni 60 "
     "70 80|all time classics|only the golden classics|classic gold|goud van oud|gouwe ouwe|éxitos del "
     "ayer|hits of yesterday|70 80 hits|musica de ayer|del recuerdo|variety hits|adult hits|classic hits 60s "
     "70s 80s|classic hits 60s 70a 80s|clasicos en espanol e ingles|remember|memories|100 golden "
     "oldies|ретро хиты"},
    {'o', "Before 1950", "1920s|1930s|1940s|30s|40s|20s 30s 40s|20s|1920|1930|1940|pre war|20s 30s|1910s"},
    {'o', "50s", "50s|1950s|50er|1950|oldies 50s 60s|50s 60s|1950s and 1960s|fifties"},
    {'o', "60s",
     "60s|1960s|60er|sixties|60|1960|the beatles|beatles|british invasion|años 60|anni 60|oldies 50s 60s|60s "
     "70s|1960s and 1970s|60s oldies|annees 60"},
    {'o', "70s",
     "70s|1970s|70er|70|1970|seventies|hits 70s|años 70|anni 70|70s hits|annees 70|60s 70s|70s 80s|70e|70s "
     "80s 90s"},
    {'o', "80s",
     "80s|1980s|80er|80|1980|eighties|hits 80s|años 80|anni 80|80s hits|80s radio|anos 80|1980s hits|the "
     "best of 80s|all 80s|80s en espanol|80s music|80s pop|annees 80|musica anni 80|80th|70s 80s 90s|70s "
     "80s|80s 90s|new classics 80s|lata 80|die 80er"},
    {'o', "90s",
     "90s|1990s|90er|90|1990|nineties|hits 90s|años 90|anni 90|90s hits|90s music|90s y mas|anos 90|annees "
     "90|80s 90s|90s pop|classic 90s|70s 80s 90s|die 90er"},
    {'o', "2000s", "2000s|00s|2000er|2000|00er|hits 2000|años 2000|anos 2000|early 2000s|2k|y2k|nuller"},
    {'o', "2010s & 2020s", "2010s|10s|2010er|2020s|2020er|2010|2020|new classics"},
    // Holiday
    {'i', "Christmas",
     "christmas|christmas music|xmas|x mas|weihnachten|weihnachtslieder|navidad|christmas songs|noel|klassik "
     "weihnachten christmas|weihnachtsmusik|natale|рождество|holiday music|christmas radio|holiday music nov "
     "dec|kerst|kerstmuziek|santa|navideña"},
    {'i', "Other Seasons",
     "holiday|seasonal|seasonal holiday|karneval|fasching|summer|carnaval|halloween|summer tunes|carnival "
     "music|easter|fiesta patria|valentine"},
    // Latin
    {'l', "",
     "latin|latino|latina|musica latina|latin music|musica latinoamericana|latin hits|latin "
     "urban|urbano|musica urbana|latino urbano|urbana|latino pop dance|latin salsa kumbia merengue "
     "reggaeton|latin salsa kumbia merenge reggaeton|latin salsa|ритмы латино|latino music|latinos|latin "
     "american music|pop urbano|fiesta|crossover|música latina"},
    {'l', "Bachata & Merengue",
     "bachata|merengue|merengue bachata|merengue tipico|bachata merengue|dembow|perico ripiao"},
    {'l', "Bolero & Trova", "bolero|boleros|tango|milonga|trio|bolero ranchero|nostalgia boleros"},
    {'l', "Cumbia",
     "cumbia|cumbias|cumbia peruana|cumbia colombiana|cumbia ecuatoriana|peruvian cumbia|chicha|cumbia "
     "sonidera|cumbia villera|chicha ecuatoriana|cumbia andina|tecnocumbia|sonidera|musica "
     "andina|andina|huayno|andean|huaynos|folklore andino"},
    {'l', "Cuarteto & Chamamé", "cuarteto|cuartetos|chamame|folklore argentino|chacarera|zamba"},
    {'l', "Latin Pop & Ballads",
     "latin pop|pop latino|pop en espanol|latino pop|spanish pop|musica en espanol|spanish contemporary "
     "hits|spanish adult hits|spanish adult contemporary|pop espanol|adult spanish hits|juvenil|pop en "
     "espanol e ingles|musica en espanol e ingles|en espanol|spanish oldies|spanish hits|los40|exitos en "
     "español|pop español|spanish music|musica española"},
    {'l', "Reggaeton",
     "reggaeton|regaeton|reguetón|regueton|reggeaton|perreo|reggaeton y mas|latin reggaeton"},
    {'l', "Salsa & Tropical",
     "salsa|tropical|musica tropical|tropical music|salsas|salsa colombiana|salsa romantica|tropicales|salsa "
     "tropical|mambo|timba|rumba|son cubano|son|musica cubana|cuban|cuban music|guaracha|tropical hits|salsa "
     "merengue|champeta|salsa y merengue|salsa vieja|chachacha"},
    {'l', "Vallenato", "vallenato|vallenatos|vallenar|musica vallenata"},
    {'l', "Brazilian",
     "mpb|samba|sertanejo|sertaneja|pagode|forro|forró|brazilian music|brazilian pop|musica popular "
     "brasileira|sertanejo raiz|forro e sertanejo|brasileira|axe|música brasileira|funk brasileiro|brazilian "
     "rock|sertanejo universitario|pagodao|gospel evangelica|jovem|choro"},
    // News & Talk
    {'n', "",
     "news talk|talk|talk radio|talk speech|talkshow|talk show|noticias|news|hablada|radio "
     "hablada|speech|news talk music|talk shows|talks|talk show radio|разговорное|разговорный|vox|talk and "
     "speech|talkback|news talk information|информационное|news and talk|nachrichten talk|talk "
     "news|crosstalk|musica y noticias|noticias y musica|news "
     "music|interviews|entrevistas|interview|commentary|general interest talk|generalist|full "
     "service|magazine|magazines|actualidad|info|information|informacion|informativa|informations|infos|"
     "новостное|новости|新闻|综合|radio "
     "informativa|features|podcast|podcasts|actualite|debate|opinion|noticieros|noticias opinion|noticias en "
     "espanol|noticias nacionales e internacionales|noticias y comentarios|noticias "
     "cortas|notícias|nachrichten|news radio|all news|informacion y noticias"},
    {'n', "Business",
     "business|business news|economics|economy|finance|financial|wirtschaft|economic news|economia"},
    {'n', "Local News",
     "local news|noticias locales|local information|regional news|local talk|local "
     "programming|local|regional|local government|lokalne|news local|regionaal|local radio news|local "
     "weather|regional radio"},
    {'n', "Politics",
     "politics|political|political talk|politica|conservative talk|conservative|politics current "
     "affairs|current affairs|progressive talk|politik|left wing|government|national "
     "affairs|patriot|liberal"},
    {'n', "Conspiracy & Paranormal", "conspiracy|conspiracy theories|paranormal|conspiracies|ufo|mysteries"},
    {'n', "Traffic & Weather",
     "traffic|weather|traffic information|local traffic weather|verkehr|meteo|noaa|noaa weather "
     "radio|traffic radio broadcast|weather radio|weather alerts"},
    {'n', "Scanners & Emergency",
     "scanner|police scanner|fire scanner|ems scanner|police|emergency public safety|public safety|fire|air "
     "traffic|atc|aviation|ems|emergency"},
    {'n', "World News",
     "world news|international news|national news|bbc world service|rfe rl|foreign|voice of america|world "
     "service"},
    // Pop & Hits
    {'p', "",
     "pop|greek pop|italian pop|russian pop|french pop|romanian pop|polish pop|turkish pop|tamil pop|pop "
     "music|hits|musica pop|pop hits|поп|поп музыка|popular|popmusik|pop musik|popular music|pop en "
     "ingles|musica en ingles|mainstream|hit|charts|hit music|mainstream pop|indie pop hits|euro "
     "pop|europop|soft pop|teen pop|pop divas|hits music|mainstream hits|hit radio|party|party "
     "hits|partyhits|pop mix|pop dance|dance pop|exitos|éxitos|mix pop|pop muzyka|muzyka pop|alternative "
     "pop|anglo|流行|流行音乐|pop internacional|variété|variete|energy|contemporary|todays hits|new "
     "music|hit music only|puros exitos|today|only hits|hot hits|hits fm|musica popular|partymusik|pop "
     "radio|solo musica|best music|europe hits|popularna|zabavna muzika|neue musik"},
    {'p', "Adult Contemporary",
     "adult contemporary|hot adult contemporary|ac|hot ac|soft adult contemporary|soft ac|adulta|adulto "
     "contemporaneo|contemporanea|modern adult contemporary|adult|adulto|modern ac|mainstream ac|adult "
     "pop|adult top 40"},
    {'p', "Top 40 & Charts",
     "top 40|top40|top hits|top charts|contemporary hits|contemporary hits radio|contemporary hit "
     "radio|chr|top 100|top100|top|top 40 hits|chart|dance top40|top 40 pop|top 50|chr top 40|hitparade|hit "
     "parade|best hits|newcomer|top 20|hot 100|new releases|current hits"},
    {'p', "German Pop", "deutschpop|german pop|deutsche musik|deutsch pop|austropop|deutsche hits"},
    // Regional Mexican
    {'x', "",
     "regional mexican|regional mexicana|musica regional mexicana|mexican music|musica mexicana|musica "
     "regional|regional music|música regional|la mexicana|mexicana|musica grupera mexicana|folklore "
     "mexicano|mexican"},
    {'x', "Banda & Norteño",
     "banda|norteno|norteña|banda norteña|sierreño|banda sinaloense|musica "
     "norteña|tambora|tejano|conjunto|tex mex|norteñas|norteño banda|nortena banda|banda tradicional"},
    {'x', "Corridos", "corridos|corridos tumbados|narcocorridos|trova mexicana"},
    {'x', "Grupera",
     "grupera|grupero|musica grupera|gruperas|la grupera|la bestia grupera|gruperos|grupera mexicana"},
    {'x', "Mariachi & Ranchera",
     "ranchera|rancheras|mariachi|musica ranchera|la ranchera|ranchero|traditional mexican music|musica "
     "tradicional mexicana|musica popular mexicana|rancheras mexicanas"},
    // Religious
    {'t', "",
     "religious|religion|spiritual|religioso|religiosa|religous|fe|faith|musica "
     "religiosa|inspirational|interfaith|religión|espiritual|religieux|geistlich"},
    {'t', "Bible & Teaching",
     "bible|christian talk|christian teaching|sermons|biblia|bibel|bible "
     "teaching|preaching|predicas|biblical|mensajes cristianos|expository preaching|scripture|theology"},
    {'t', "Buddhist & Hindu",
     "buddhism|hindu|bhajan|devotional|buddhist|krishna|bhakti|hinduism|gurbani|sikh|kirtan"},
    {'t', "Catholic",
     "catholic|catolica|católica|catholic radio|katholik|katholisch|catholique|radio "
     "maria|rosary|katholic|ewtn|cattolica|katolik|catolico|cattolici|katolickie|chrétienne"},
    {'t', "Christian",
     "christian|cristiana|christian music|radio cristiana|evangelio|christianity|cristiano|christian "
     "radio|cristian|evangelical|adventist|church|pentecostalism|kristen|media kristen|musica "
     "cristiana|jesus|christlich|ecclesia|online christian "
     "radio|chirstian|evangelica|chretien|chrétien|protestant|crestina|muzica crestina|baptist|gospel "
     "evangélica|messianic|spanish christian|evangelisch|kristendom|хрис тианское|христианское|christian "
     "programming|evangelico|evangélica|adventista"},
    {'t', "Christian Music & Worship",
     "contemporary christian|christian contemporary|praise|worship|ccm|praise and worship|praise "
     "worship|christian praise worship|alabanza|alabanzas|christian rock|christian hits|adoracion|worship "
     "music|christian pop|louvor|christian hip hop|alabanza y adoracion|contemporary christian music"},
    {'t', "Gospel",
     "gospel|southern gospel|gospel music|christian gospel|black gospel|urban gospel|country gospel|gospel "
     "radio|traditional gospel|bluegrass gospel"},
    {'t', "Islamic",
     "islamic|islam|quran|koran|muslim|quran radio|القرآن|القرآن الكريم|راديو القرآن|sunnah|ilahi|holy "
     "quran|قرآن|islamique|nasheed|إسلامي|quraan|islami"},
    {'t', "Jewish", "jewish|hebrew|judaism|torah|yiddish|דתי|klezmer"},
    {'t', "Orthodox",
     "orthodox|orthodox christian|christian orthodox|ορθοδοξία|orthodoxy|orthodox "
     "church|byzantine|εκκλησία|ιερά "
     "μητρόπολις|χριστιανισμός|православие|ортодокс|православное|ορθόδοξος|bisericeasca"},
    // Schlager & Volksmusik
    {'y', "",
     "schlager|deutsche schlager|schlagerhits|discofox schlager|schlager music|deutsche "
     "lieder|schlagerparty|schlager oldies|deutscher schlager|schlagermusik|schlagerradio"},
    {'y', "Discofox & Popschlager",
     "discofox|popschlager|pop schlager|discofox oldies|party schlager|partyschlager|fox|fetenhits|apres "
     "ski|ballermann|mallorca"},
    {'y', "Volksmusik",
     "volksmusik|volkstumlich|volkstümlich|blasmusik|volksmusik schlager|volkstumliche "
     "musik|alpenrock|stimmung|heimatmusik|tiroler musik|volksmuziek"},
    // Soundtracks, Games & Anime
    {'0', "Anime & J-Pop",
     "anime|jpop|j pop|jrock|j rock|japanese|japanese music|anime openings|anime radio|vocaloid|city "
     "pop|anison|manga|vtuber"},
    {'0', "Musicals", "musicals|musical|broadway|show tunes|showtunes|cabaret|musical theatre"},
    {'0', "Soundtracks",
     "soundtrack|soundtracks|film music|movie soundtracks|movie|film|movies|filmmusik|ost|film "
     "score|cinematic|epic|movie music|bandas sonoras|filmscore|scores|musique de film|саундтрек|epic "
     "music|trailer music"},
    {'0', "Video Games",
     "video game music|videogame music|video game|gaming|games|game|retro games|game "
     "music|vgm|nintendo|fallout|gta|gamer|videogames|game soundtracks|mlp|brony|fan music|my little pony "
     "friendship is magic|fandom"},
    // Sports
    {'1', "",
     "sports|sport|deportes|deporte|sports talk|live sports|sports news|esportes|debates y deportes|noticias "
     "y deportes|sports radio|deportiva|sports commentary|спорт|espn|espn radio|all sports|sports talk "
     "radio|local sports"},
    {'1', "American Football & Baseball",
     "ncaa football|nfl|baseball|mlb|college football|college sports|american "
     "football|nba|basketball|hockey|nhl"},
    {'1', "Football",
     "football|futbol|soccer|futebol|fussball|bundesliga|calcio|esportes futebol|premier "
     "league|fútbol|voetbal|foot"},
    {'1', "Motor Sports", "motorsport|racing|formula 1|nascar|f1"},
    // Variety
    {'v', "",
     "variety|various|varied|variada|variado|musica "
     "variada|variedad|variedades|misc|miscellaneous|mix|mixed|eclectic|various music|varios|variados|music "
     "variety|mixed music|general|разная музыка|смешанный|international|gemischt|alles|bunt "
     "gemischt|entretenimiento|musique variee|eclectica|eclectic programming|a bit of "
     "everything|allerlei|all genres|multi genre|diverse|all music|eclética|eclético|músicas "
     "variadas|variety music|various styles|tout|everything|mixx|24 7 music|musica varia|various "
     "genres|multikulti mix"},
    {'v', "Multicultural",
     "multicultural|multilingual|ethnic programming|multikulti|diversity|multi cultural|cosmopolitan"},
    // World
    {'w', "",
     "world music|world|worldbeat|world beats|musiques du monde|weltmusik|global|musicas del mundo|musica "
     "del mundo|musique du monde|world fusion|этническая|wereldmuziek|monde|folk world"},
    {'w', "African",
     "african music|african|afrikaans|africa|afro music|gnawa|ethiopian|amharic|soukous|highlife|rai "
     "music|mbalax|ethiopian music|congo|kenyan|south african music|musique africaine|swahili|luganda"},
    {'w', "Arabic & Middle Eastern",
     "arabic|arabic music|world middle east|oriental|arab|عربي|arabesk|khaleeji|lebanese|middle "
     "east|oriental music|coran|egyptian|أغاني|maghreb|rai|chaabi|rai algerien|arabe|طرب|musique orientale"},
    {'w', "Balkan",
     "balkan|narodna|zabavna|zabavna narodna|narodna folk|narodna muzika|exyu|ex yu|turbo folk|folk "
     "narodna|izvorna|sevdah|chalga|starogradska|domaca|domaća|ex yu rock|pop folk|попфолк|macedonian "
     "pop|krajiska|narodnjaci|macedonian|bosna|croatian music|serbian music|tamburica|чалга|folklor "
     "bulgaria|bulgarian|bulgarian folk|balkan music|hrvatska glazba|croatian"},
    {'w', "Baltic & Nordic",
     "nordic|scandinavian|dansk|svensk|norsk|dansband|suomi|suomipop|iskelma|latviesu|eesti|lietuviska|"
     "swedish|finnish|danish|svensktoppen"},
    {'w', "Caucasian & Central Asian",
     "armenian|georgian|kazakh music|azerbaijani|uzbek|kazakh|tatar|caucasus|armenian "
     "music|кавказская|kurdish songs|kurdish folk music|kurdish|kurdish music|bashkir"},
    {'w', "Chinese & Cantopop",
     "chinese|mandopop|cantopop|chinese music|c pop|cpop|国语|粤语|音乐|hong kong|taiwanese|c pop "
     "mandopop|mandarin|华语|音乐台|交通|cantonese|戏曲"},
    {'w', "Flamenco & Fado",
     "flamenco|fado|copla|sevillanas|rumba flamenca|spanish guitar|portuguese music|musica "
     "portuguesa|portuguese|pimba|flamenquito"},
    {'w', "Greek Folk & Laika",
     "greek folk|greek folk music|greek traditional|laika|rebetiko|rembetika|entehno|λαϊκά|λαϊκά "
     "τραγούδια|greek laika|παραδοσιακά|ρεμπέτικα|λαϊκή|δημοτικά|entexna|greek laiko|cretan|κρητικά"},
    {'w', "Hungarian",
     "hungarian|magyar|magyar zene|hungarian music|hungarian pop music|mulatos|mulatós|hungarian pop"},
    {'w', "Indian & Bollywood",
     "bollywood|hindi|tamil|indian|tamil music|tamil fm|bhojpuri|punjabi|malayalam|indian music|desi|hindi "
     "bollywood|tamil songs|tamil cinema music|hindi songs|telugu|kannada|bhangra|south india|india|indian "
     "classical|ghazal|bangla|bengali|tamil hits|tamil radio|carnatic|bollywood hits|hindi "
     "music|marathi|gujarati|filmi|kollywood|hindi retro|desi influenced asian|old hindi "
     "songs|urdu|pakistani|nepali|sinhala|sri lanka"},
    {'w', "Indonesian & Malay",
     "dangdut|koplo|indonesian|campursari|malay|malaysian pop|keroncong|indonesia|lagu|melayu|indo pop|lagu "
     "indonesia|pop indonesia|gamelan"},
    {'w', "Israeli", "israeli|israeli music|mizrahi|mizrachi|hebrew music|israeli pop"},
    {'w', "K-Pop & Korean", "kpop|k pop|korean|korean music|k pop music|trot|korean pop"},
    {'w', "Persian & Afghan",
     "persian|iranian|persian music|iranian music|farsi|afghan|dari|persian pop|irani|ایرانی|pashto"},
    {'w', "Philippine",
     "opm|pinoy|filipino|tagalog|original pilipino music|pinoy music|philippines music|masa"},
    {'w', "Thai & Vietnamese",
     "thai|thai music|luk thung|vietnamese|nhac|nhac vang|เพลง|ลูกทุ่ง|thai pop|khmer|burmese"},
    {'w', "Turkish",
     "turkish|turkish music|turkish pop|turkce|türkçe|turk|türkçe pop|turkish folk|halk "
     "müziği|arabesque|turku|türkü|arabesk turkish|slow turkce|nostalji|turk halk muzigi|turkce "
     "slow|karadeniz"},
    {'w', "Ukrainian",
     "ukrainian|ukrainian music|ukrainian pop|ukraine|українська|українська музика|украинская"},
    {'w', "Italian",
     "italian pop|musica italiana|solo musica italiana|italian music|classic italian "
     "pop|italian|italiana|italian oldies|musica leggera"},
    {'w', "French & Chanson",
     "chanson|chansons francaises|french music|french chansons|chanson francaise|variete francaise|french "
     "pop|chansons|musique francaise|variété française|french"},
    {'w', "Russian & Chanson",
     "russian pop|шансон|russian hits|russian music|shanson|russian|русская музыка|русская популярная "
     "музыка|русская|russian chanson|русские хиты|русский|radio dacha|русский шансон"},
    {'w', "Greek",
     "greek pop|greek music|greek|ελληνικά|greek hits|modern greek|ελληνική|greek modern|ελληνική μουσική"},
    {'w', "Polish & Disco Polo",
     "disco polo|polish pop|polish rock|polish|polish music|muzyka polska|polskie hity"},
    {'w', "Romanian & Manele",
     "manele|romanian|romanian pop|manele si petrecere|muzica de petrecere|petrecere|romanian music|manele "
     "noi|manele vechi|populara|muzica populara|romanian folk|etno manele"},
    {'w', "Dutch & Pirates",
     "nederlandstalig|dutch|dutch "
     "music|piratenhits|piraten|geheimezender|etherpiraten|hollands|nederlands|hollandse "
     "hits|piratenmuziek|dutch hits"},
    {'w', "Czech & Slovak",
     "czech|ceska hudba|slovak|slovenska hudba|česká hudba|dechovka|czech music|slovak music|country a "
     "folk|ceske hity"},
};

// Words that list makers add to everything, and owners of networks; places and frequencies are recognised
// otherwise.
constexpr std::string_view kEmpty[] = {"music",
                                       "musica",
                                       "musik",
                                       "musique",
                                       "muzika",
                                       "muzyka",
                                       "музыка",
                                       "radio",
                                       "fm",
                                       "am",
                                       "fm radio",
                                       "estacion",
                                       "station",
                                       "online",
                                       "internet",
                                       "internet radio",
                                       "internetradio",
                                       "webradio",
                                       "web radio",
                                       "online radio",
                                       "radio online",
                                       "online only",
                                       "live",
                                       "livestream",
                                       "live stream",
                                       "stream",
                                       "streaming",
                                       "live radio",
                                       "mp3",
                                       "aac",
                                       "ogg",
                                       "flac",
                                       "opus",
                                       "m3u8",
                                       "hls",
                                       "hls video",
                                       "https",
                                       "http",
                                       "hd",
                                       "hq",
                                       "high quality",
                                       "high quality audio",
                                       "tv",
                                       "television",
                                       "iptv",
                                       "24 7",
                                       "24h",
                                       "free",
                                       "no ads",
                                       "commercial free",
                                       "ad free",
                                       "non stop",
                                       "nonstop",
                                       "non stop music",
                                       "only music",
                                       "music only",
                                       "music non stop",
                                       "commercial",
                                       "exclusive",
                                       "exclusively",
                                       "digital",
                                       "dab",
                                       "other",
                                       "undefined",
                                       "unknown",
                                       "na",
                                       "none",
                                       "test",
                                       "norteamerica",
                                       "latinoamerica",
                                       "america",
                                       "centroamerica",
                                       "latino america",
                                       "suramerica",
                                       "europa",
                                       "europe",
                                       "mex",
                                       "mx",
                                       "usa",
                                       "uk",
                                       "cdmx",
                                       "gdl",
                                       "ciudad mexico",
                                       "ciudad de mexico",
                                       "mexico city",
                                       "valle de mexico",
                                       "estado de mexico",
                                       "sureste",
                                       "en todas partes",
                                       "national",
                                       "nacional",
                                       "youth",
                                       "best",
                                       "new",
                                       "super",
                                       "one",
                                       "original",
                                       "official",
                                       "top radio",
                                       "good music",
                                       "the best",
                                       "moi merino",
                                       "mvs",
                                       "mvs radio",
                                       "mediaset",
                                       "radcap",
                                       "radio caprice",
                                       "radio caprice radcap",
                                       "iheart",
                                       "iheart radio",
                                       "iheartradio",
                                       "tunein",
                                       "radiorama",
                                       "radiopolis",
                                       "exa",
                                       "exa fm",
                                       "ponte exa",
                                       "la estacion exacta",
                                       "la estacion naranja",
                                       "acir",
                                       "grupo acir",
                                       "acir online",
                                       "multimedios",
                                       "multimedios radio",
                                       "dashradio",
                                       "dash",
                                       "abc",
                                       "combo",
                                       "drgnu",
                                       "new format rebranding",
                                       "rebranding",
                                       "promodj",
                                       "royalty free",
                                       "creative commons",
                                       "low bandwidth",
                                       "ilstations",
                                       "concesion social",
                                       "radio formula",
                                       "grupo formula",
                                       "grupo radio centro",
                                       "imer",
                                       "ke buena",
                                       "la ke buena",
                                       "la mejor",
                                       "la mejor fm",
                                       "w radio",
                                       "arroba fm",
                                       "te conecta",
                                       "fm te conecta",
                                       "arroba fm te conecta",
                                       "aqui nomas",
                                       "la mejor aqui nomas",
                                       "social",
                                       "female vocals",
                                       "female vocalists",
                                       "femalevocals",
                                       "vinyl",
                                       "dj radio",
                                       "song requests",
                                       "region",
                                       "area",
                                       "waynesboro",
                                       "kazan",
                                       "moskva",
                                       "roma",
                                       "milano",
                                       "napoli",
                                       "boston",
                                       "london",
                                       "nashville",
                                       "chicago",
                                       "toronto",
                                       "prague",
                                       "auto",
                                       "road",
                                       "car",
                                       "workout",
                                       "fitness",
                                       "work",
                                       "shopping",
                                       "instore radio",
                                       "promo"};

}  // namespace

std::span<const Genre> GenreList() { return kGenres; }

std::span<const GenreLine> OtherTags() { return kLines; }

std::span<const std::string_view> EmptyTags() { return kEmpty; }

}  // namespace sonaro
