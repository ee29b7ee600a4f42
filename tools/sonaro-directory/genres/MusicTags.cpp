#include "genres/GenreTable.h"

namespace sonaro {
namespace {

constexpr GenreLine kMusicLines[] = {
    // Alternative & Indie
    {'a', "", "alternative|alternativa|alternativo|alternative music|alternative hits|modern alternative"},
    {'a', "Alternative Rock",
     "alternative rock|alt rock|rock alternativo|modern rock|new rock|alternative indie rock|college rock|"
     "alternative pop rock|90s alternative|classic alternative|alternative classics"},
    {'a', "Indie",
     "indie|indie music|indie rock|indie pop|independent|independent music|alternative "
     "indie|underground|indie folk|"
     "alt folk|dream pop|independent artists|rock indie"},
    {'a', "Adult Album Alternative", "adult album alternative|aaa|triple a|adult alternative|americana aaa"},
    {'a', "Goth & Dark Wave",
     "gothic|goth|darkwave|dark wave|gothic rock|neofolk|coldwave|minimal wave|dark"},
    {'a', "Grunge", "grunge"},
    {'a', "Industrial & EBM", "industrial|ebm|futurepop|aggrotech"},
    {'a', "New Wave & Post-Punk", "new wave|post punk|synth punk|ndw|neue deutsche welle|wave|no wave"},
    {'a', "Punk & Ska",
     "punk|punk rock|ska|ska punk|nu punk|pop punk|garage punk|oi|psychobilly|crust|hardcore punk"},
    {'a', "Shoegaze & Post-Rock", "shoegaze|post rock|math rock|noise rock"},
    {'a', "Emo & Post-Hardcore", "emo|post hardcore|screamo"},
    // Blues
    {'b', "", "blues|blues music|блюз|the blues|blues radio"},
    {'b', "Blues Rock", "blues rock|bluesrock|british blues"},
    {'b', "Chicago & Electric Blues", "chicago blues|electric blues|modern blues"},
    {'b', "Classic & Country Blues",
     "classic blues|country blues|delta blues|regional blues|acoustic blues|soul blues"},
    // Classical
    {'c', "",
     "classical|classical music|klassik|clasica|musica clasica|classique|musique "
     "classique|klassiek|klassische musik|"
     "klassieke muziek|classica|musica classica|классика|классическая музыка|classical radio|klasika|classic "
     "fm|"
     "classic music|klassika|clásica|κλασική"},
    {'c', "Baroque & Early Music",
     "baroque|classical baroque|barock|early music|medieval|mittelalter|renaissance|bach|vivaldi"},
    {'c', "Chamber Music", "chamber music|chamber|string quartet"},
    {'c', "Choral", "choral|choir|organ|hymns|chor"},
    {'c', "Contemporary Classical",
     "contemporary classical|modern classical|neoclassical|neo classical|21st century|20th century|20c|new "
     "classical|"
     "classical crossover"},
    {'c', "Opera", "opera|traditional opera|operetta|oper|lyric"},
    {'c', "Piano", "piano|classical piano|solo piano|piano music|klavier"},
    {'c', "Guitar & Strings", "classical guitar|violin|guitar|cello|harp"},
    {'c', "Romantic", "musica clasica romantica|mozart|beethoven|chopin|romantik"},
    {'c', "Symphonic", "symphonic|symphony|orchestral|orchestra|philharmonic"},
    // Country & Americana
    {'d', "",
     "country|country music|country hits|top country|hot country|country radio|contemporary "
     "country|mainstream country|"
     "us country|country rock pop|кантри"},
    {'d', "Americana & Roots",
     "americana|roots|roots music|roots rock|alternative country|alt country|red dirt|folk americana"},
    {'d', "Bluegrass", "bluegrass|bluegrass music|old time music"},
    {'d', "Classic Country",
     "classic country|traditional country|country classics|honky tonk|outlaw country|old country|country "
     "oldies|"
     "western swing|country gold|real country"},
    {'d', "Country Rock & Pop", "country rock|country pop|southern rock|texas country|texas red dirt"},
    {'d', "New Country", "new country|modern country|young country|today s country|today s best country"},
    // Dance & Electronic
    {'e', "",
     "electronic|dance|electronica|electro|edm|electronic dance music|dance music|electronic "
     "music|elektronik|elektro|"
     "electrónica|musica electronica|electronico|club|clubbing|dance club|club dance|танцевальная|клубная|"
     "танцевальная музыка|электронная|электронная музыка|электро|techno house|musique "
     "electronique|electronique|"
     "dance radio|dancefloor|dance hits|club hits|elettronica|dance electronic|rave|beats|electronic beats|"
     "elektronische musik|bailable|partymix|dance house"},
    {'e', "Breakbeat & Bass",
     "breakbeat|breaks|bass|uk garage|garage|grime|future bass|broken beat|moombahton|bass music|nu skool "
     "breaks|juke"},
    {'e', "Chiptune & Demoscene", "chiptune|chiptunes|demoscene|c64|8bit|8 bit|tracker music|amiga"},
    {'e', "DJ Mixes",
     "dj|dj sets|dj mixes|dj mix|dj remix|mixtapes|remix|remixes|mashup|remixed|dj set|djs|mixes|live "
     "dj|live djs|mix dj|"
     "edm radioshows|radio shows"},
    {'e', "Downtempo & Trip-Hop",
     "downtempo|trip hop|triphop|chillhop|lofi|lo fi|lofi hip hop|chillwave|organic|chillstep|illbient|beats "
     "to study"},
    {'e', "Drum & Bass",
     "drum and bass|drum bass|dnb|d n b|drum n bass|jungle|neurofunk|liquid funk|liquid dnb|drumn "
     "bass|drumnbass|"
     "liquid drum and bass|hardcore jungle"},
    {'e', "Dubstep & Trap", "dubstep|brostep|chilled trap|edm trap|riddim"},
    {'e', "Eurodance & Italo Disco",
     "eurodance|italo disco|euro disco|euro hits|eurodisco|euro dance|italo|italodisco|hi "
     "nrg|spacesynth|italo dance|"
     "90s dance|freestyle|discomusic 80|fantasy italo|handsup|hands up|mega dance"},
    {'e', "Experimental & IDM",
     "experimental|idm|noise|glitch|experimental electronic music|avant garde|drone|field recording|abstract|"
     "experimental music|sound art|electroacoustic|soundscape"},
    {'e', "Hardstyle & Hardcore",
     "hardstyle|happy hardcore|jumpstyle|hard dance|gabber|hardcore|hard "
     "techno|hypertechno|frenchcore|hardcore techno|"
     "uk hardcore|rawstyle"},
    {'e', "House",
     "house|house music|club house|electro house|progressive house|tech house|techhouse|chill house|funky "
     "house|"
     "soulful house|vocal house|future house|afro house|bigroom|big room|tropical house|latin "
     "house|houseparty|"
     "organic house|balearic house|jackin house|хаус|french house|melodic house|acid house|amapiano|chicago "
     "house|classic house"},
    {'e', "Deep House", "deep house|deephouse|deep|house soulful deep house|vocal deep|deep house lounge"},
    {'e', "Minimal & Tech House", "minimal|minimal techno|minimal tech house|tech house|micro house"},
    {'e', "Synthwave & Synthpop",
     "synthwave|synthpop|synth pop|retrowave|vaporwave|electropop|synth|outrun|cyberpunk|future "
     "funk|chillsynth|"
     "uk synthpop|electro pop|depeche mode|witch house"},
    {'e', "Techno",
     "techno|deep techno|dub techno|dark techno|techno music|tecno|detroit techno|melodic techno|acid techno|"
     "melodic house techno|ambient techno|electro techno|underground techno|техно"},
    {'e', "Trance",
     "trance|uplifting trance|progressive trance|vocal trance|psytrance|goa|psychedelic trance|goa trance|"
     "progressive psytrance|melodic trance|транс|psychill|psy trance|trance music|psybient|hard trance"},
    {'e', "Nu Disco & Electro Swing", "nu disco|electro swing|disco house|french touch|electroswing"},
    // Easy Listening & Chillout
    {'f', "",
     "easy listening|soft music|easy|smooth|calm|soft|slow|mellow|lite|musica instrumental|light|beautiful "
     "music|"
     "easy music|лëгкая музыка|легкая музыка|relaxing music|background music|instrumental music|instrumental|"
     "softpop|muzak|elevator music|smoothest songs|smooth music|slow music|mood"},
    {'f', "Acoustic & Vocal",
     "acoustic|vocal|vocal pop|vocals|crooners|crooner|adult standards|standards|great american "
     "songbook|crooner radio"},
    {'f', "Ambient",
     "ambient|ambient music|ambiental|dark ambient|deep ambient|ambient lounge|ambient "
     "electronic|space|space music|atmospheric|эмбиент"},
    {'f', "Chillout",
     "chillout|chill|chill out|chilled|chillout lounge|чилаут|chill music|chillout music|lounge "
     "chill|balearic|ibiza|sunset|"
     "beach|beach bar|chillax"},
    {'f', "Lounge",
     "lounge|lounge music|smooth lounge|jazz lounge|lounge radio|vocal lounge|cocktail|лаундж|bar lounge"},
    {'f', "Love Songs & Ballads",
     "love songs|romantic|ballads|lovesongs|baladas|balada|romantica|romantico|romantic music|musica "
     "romantica|love|amor|"
     "slow rock|romantische musik|balladen|rock ballads|baladas en espanol|balada en espanol|balada "
     "pop|balada romantica|"
     "baladas en ingles|romanticas|romantico|love song|kuschelrock|романтика|amor solo musica romantica|"
     "solo musica romantica|romantic songs|romance|romantiek|power ballads|romanticismo|liebeslieder"},
    {'f', "New Age & Meditation",
     "new age|meditation|healing|yoga|spa|zen|spiritual|mantra|new age music|meditacion|mindfulness|new age "
     "piano|"
     "relax music meditation|reiki|wellness"},
    {'f', "Relaxation & Sleep",
     "relax|relaxing|relaxation|ambient and relaxation music|relaxation music|sleep|nature|sounds of "
     "nature|relax music|"
     "nature sounds|music for study|study|релакс|sleep music|rain|entspannung|relaxen|white "
     "noise|focus|naturaleza"},
    // Folk & Traditional
    {'g', "",
     "folk|folk music|folklore|folclore|folclor|folkmusic|traditional|traditional music|musica "
     "tradicional|etno|ethno|ethnic|"
     "фолк|folk rock|musique traditionnelle|traditionnel|musica folclorica|folklor|música "
     "folclórica|trad|volksmusik folk|"
     "народная музыка|ethnic music|acoustic folk|contemporary folk|classic folk|folk "
     "tradicional|tradicional|tradition|folkpop"},
    {'g', "Celtic & Irish",
     "celtic|irish folk|irish|scottish|irish music|celtic music|breton|celtique|gaelic|scottish music"},
    {'g', "Singer-Songwriter",
     "singer songwriter|liedermacher|singer songwriters|cantautor|cantautores|trova|chanson folk|songwriter"},
    {'g', "Polka & Dance Bands", "polka|oberkrainer|slovenian polka|polka music"},
    {'g', "Shanty & Maritime", "shanty|shanties|maritim|sea shanties"},
    // Hip-Hop, R&B & Soul
    {'h', "",
     "urban|black music|urban music|black|urban contemporary|mainstream urban|rap hiphop rnb|r b soul|rnb "
     "soul|rhythmic|rhythmic contemporary|rhythmic contemporary hits|hiphop rnb|hip hop r b"},
    {'h', "Afrobeats", "afrobeats|afrobeat|afro|afropop|afro pop|naija"},
    {'h', "Funk & Disco",
     "funk|funky|disco|disco funk|disco music|groove|rare groove|boogie|discofunk|discomusic 70|70s "
     "disco|диско|"
     "disco 80|p funk|disco hits|classic disco|discoteca"},
    {'h', "Neo Soul", "neo soul|neosoul|nu soul"},
    {'h', "Hip-Hop",
     "hiphop|hip hop|hip hop music|hip hop and rap|хип хоп|underground hip hop|hip hop rap|turntablism|hip "
     "hop rnb"},
    {'h', "Hip-Hop Oldies",
     "classic hip hop|old school hip hop|hip hop and rap oldies|oldschool hip hop|throwback hip hop|90s hip "
     "hop|old school rap|golden era hip hop|boom bap"},
    {'h', "Rap & Trap",
     "rap|trap|drill|deutschrap|german rap|french rap|phonk|рэп|рап|rap francais|rap us|rap music|rap "
     "fr|underground rap|latin trap|gangsta rap|explicit"},
    {'h', "R&B",
     "rnb|r b|r n b|rhythm and blues|r b urban|contemporary r b|urban adult contemporary|urban ac|slow "
     "jams|quiet storm|rhythm blues|adult r b|r b hits"},
    {'h', "Soul & Motown",
     "soul|classic soul|motown|northern soul|soul music|soulful|southern soul|modern soul|соул|blue eyed "
     "soul|soul funk|philly soul|soul classics|sweet soul|soul r b"},
    // Jazz
    {'j', "", "jazz|jazz music|джаз|jazz radio|jazzy|τζαζ|musica jazz|jazz blues|jazz and blues|爵士"},
    {'j', "Acid & Nu Jazz", "acid jazz|nu jazz|nujazz|electro jazz|future jazz|jazzhop"},
    {'j', "Bebop & Hard Bop",
     "bebop|hard bop|post bop|cool jazz|free jazz|avant garde jazz|modern jazz|contemporary jazz"},
    {'j', "Big Band & Swing",
     "swing|big band|bigband|big bands|swing music|ragtime|dixieland|swing jazz|trad jazz|new orleans|new "
     "orleans jazz|gypsy jazz|swing big band"},
    {'j', "Bossa Nova", "bossa nova|bossa|bossanova|brazilian jazz"},
    {'j', "Classic Jazz",
     "classic jazz|traditional jazz|jazz classics|straight ahead jazz|vintage jazz|mainstream jazz"},
    {'j', "Fusion & Jazz Rock", "jazz fusion|fusion|jazz rock|jazz funk|funk jazz"},
    {'j', "Latin Jazz", "latin jazz|afro cuban jazz|jazz latino"},
    {'j', "Piano Jazz", "piano jazz|jazz piano"},
    {'j', "Smooth Jazz", "smooth jazz|smoothjazz|soft jazz|jazz smooth|jazz pop|pop jazz|relaxing jazz"},
    {'j', "Vocal Jazz", "vocal jazz|jazz vocal|jazz vocals|jazz standards"},
    // Metal & Hard Rock
    {'m', "",
     "metal|metal music|heavy|metal rock|металл|метал|rock metal|metal radio|wacken|wacken open "
     "air|woa|wacken radio|metal rock alternative"},
    {'m', "Black & Death Metal",
     "black metal|death metal|deathcore|melodic death metal|grindcore|extreme metal|brutal death metal"},
    {'m', "Doom & Stoner", "doom metal|doom|stoner rock|stoner|sludge|sludge metal|stoner metal|desert rock"},
    {'m', "Glam & Hair Metal", "hair metal|glam metal|glam rock|glam|sleaze rock|hair bands"},
    {'m', "Hard Rock",
     "hard rock|hardrock|heavy rock|hard rock heavy metal|arena rock|melodic hard rock|hard and heavy|ac "
     "dc|acdc|guns n roses|queen rock"},
    {'m', "Heavy Metal",
     "heavy metal|classic metal|nwobhm|iron maiden|metallica|motorhead|traditional metal|old school "
     "metal|black sabbath"},
    {'m', "Metalcore & Nu Metal",
     "metalcore|nu metal|alternative metal|rap metal|modern metal|linkin park|korn|system of a down|djent"},
    {'m', "Power & Symphonic Metal",
     "power metal|symphonic metal|melodic metal|folk metal|viking metal|gothic metal|symphonic rock "
     "metal|pagan metal"},
    {'m', "Progressive Metal", "progressive metal|prog metal"},
    {'m', "Thrash Metal", "thrash metal|thrash|speed metal|anthrax|megadeth|slayer"},
    // Reggae & Caribbean
    {'r', "",
     "reggae|reggae music|raggae|regee|регги|reggae radio|caribbean|caribbean music|west indies|island "
     "music"},
    {'r', "Dancehall & Ragga", "dancehall|ragga|dance hall|raggamuffin|bashment"},
    {'r', "Dub", "dub|dub reggae|dub music"},
    {'r', "Roots & Rocksteady", "roots reggae|rocksteady|reggae roots|lovers rock|ska reggae|rock steady"},
    {'r', "Soca & Calypso", "soca|calypso|steelpan|soca music|carnival"},
    {'r', "Zouk & Kompa", "zouk|kompa|konpa|compas|kizomba|kassav|antilles|zouk love"},
    {'r', "Hawaiian & Pacific", "hawaiian music|hawaiian|pacific|polynesian|island|maori culture"},
    // Rock
    {'s', "",
     "rock|rock music|рок|rock radio|rock hits|rock and pop|the rock|rocks|rock pop|musica rock|rock en "
     "general|rock fm|摇滚|vinyl rock"},
    {'s', "Active & Mainstream Rock", "active rock|mainstream rock|modern hard rock|adult rock|rock 40"},
    {'s', "Classic Rock",
     "classic rock|rock classics|classic rock oldies|album rock|70s rock|80s rock|rock oldies|aor|mellow "
     "album rock|"
     "classic rock hits|rock clasico|rock classique|classicrock|60s rock|rolling stones|led zeppelin|pink "
     "floyd|queen|"
     "deep purple|u2|cream|foo fighters|classic rock roots|album oriented rock|deep cuts|retro rock|dire "
     "straits|classic vinyl"},
    {'s', "Garage & Surf", "garage rock|surf|surf rock|surf music|garage surf|proto punk"},
    {'s', "German Rock", "deutschrock|krautrock|ostrock|german rock|ndh"},
    {'s', "Jam & Psychedelic",
     "psychedelic|psychedelic rock|psychedelia|jam bands|jambands|jamband|acid rock|space rock|grateful "
     "dead|swamp rock"},
    {'s', "Latin Rock",
     "rock en espanol|rock latino|rock mexicano|rock nacional|rock argentino|rock en tu idioma|rock "
     "espanol|rock chileno"},
    {'s', "Pop Rock",
     "pop rock|rock pop|pop rock alternative|contemporary pop rock|power pop|britpop|brit pop|поп рок|brit "
     "rock"},
    {'s', "Progressive Rock",
     "progressive rock|prog rock|prog|art rock|symphonic rock|progressive|classic prog"},
    {'s', "Rock'n'Roll",
     "rock n roll|rock and roll|rock roll|rockabilly|rock n roll oldies|rockandroll|doo wop|boogie "
     "woogie|rock en roll"},
    {'s', "Russian Rock", "russian rock|русский рок|nashe radio"},
    {'s', "Soft Rock",
     "soft rock|melodic rock|yacht rock|70s soft rock|80s soft rock|west coast|adult oriented rock|softrock"},
};

}  // namespace

std::span<const GenreLine> MusicTags() { return kMusicLines; }

}  // namespace sonaro
