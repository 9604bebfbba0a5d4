<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Panel</name>
    <message>
        <source>%1 are chosen, and there is room for %2: the last cell shows the last.</source>
        <translation>%1 sont choisies pour %2 cases : la dernière case montre la dernière.</translation>
    </message>
    <message>
        <source>%1 could not be read whole and will be kept as %2</source>
        <translation>%1 n'a pas pu être lu en entier et sera conservé sous %2</translation>
    </message>
    <message>
        <source>%1 has changed since you chose it: press %2 to load it as it is now</source>
        <translation>%1 a changé depuis que vous l'avez choisi : appuyez sur %2 pour le charger tel qu'il est maintenant</translation>
    </message>
    <message>
        <source>%1 has lines of another program too; they are in the log now</source>
        <translation>%1 contient aussi des lignes d'un autre programme ; elles sont maintenant dans le journal</translation>
    </message>
    <message>
        <source>%1 has no data</source>
        <translation>%1 ne contient aucune donnée</translation>
    </message>
    <message>
        <source>%1 has no record of what was chosen</source>
        <translation>%1 ne contient aucune courbe des voies choisies</translation>
    </message>
    <message>
        <source>%1 has no spectrum: its scales are not known, or its record is cut</source>
        <translation>%1 n'a pas de spectre : ses échelles sont inconnues ou son enregistrement est tronqué</translation>
    </message>
    <message>
        <source>%1 has too few brackets: values of the report stand in wrong places</source>
        <translation>%1 n’a pas assez de crochets : des valeurs du rapport sont mal placées</translation>
    </message>
    <message>
        <source>%1 holds no setup</source>
        <translation>%1 ne contient pas de réglages</translation>
    </message>
    <message>
        <source>%1 in divisions: its scale is not known</source>
        <translation>%1 en divisions : son échelle est inconnue</translation>
    </message>
    <message>
        <source>%1 in divisions: math has no volts</source>
        <translation>%1 en divisions : le calcul n'a pas de volts</translation>
    </message>
    <message>
        <source>%1 is clipped: levels and harmonics are not the signal's own</source>
        <translation>%1 est écrêtée : niveaux et harmoniques ne sont pas ceux du signal</translation>
    </message>
    <message>
        <source>%1 is no value</source>
        <translation>%1 n'est pas une valeur</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 enregistrements</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>lignes : %1</translation>
    </message>
    <message>
        <source>%1 was changed by another program, and that is kept as %2</source>
        <translation>%1 a été modifié par un autre programme ; cette version est conservée sous %2</translation>
    </message>
    <message>
        <source>%1 was not loaded whole</source>
        <translation>%1 n'a pas été chargé en entier</translation>
    </message>
    <message>
        <source>%1 was not loaded: %2</source>
        <translation>%1 n'a pas été chargé : %2</translation>
    </message>
    <message>
        <source>%1, %2: different sweeps</source>
        <translation>%1, %2 : balayages différents</translation>
    </message>
    <message>
        <source>%1: %2 from line to line</source>
        <translation>%1 : %2 de raie en raie</translation>
    </message>
    <message>
        <source>%1: %2 of %3 settings not confirmed</source>
        <translation>%1 : %2 réglages sur %3 non confirmés</translation>
    </message>
    <message>
        <source>%1: %2, %3 to %4</source>
        <translation>%1 : %2, de %3 à %4</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4</source>
        <translation>%1 : %2, %3, %4</translation>
    </message>
    <message>
        <source>%1: drawn at position %2, not at %3</source>
        <translation>%1 : tracée à la position %2, et non à %3</translation>
    </message>
    <message>
        <source>%1: earlier records under these scales: %2</source>
        <translation>%1 : enregistrements antérieurs à ces échelles : %2</translation>
    </message>
    <message>
        <source>%1: given up</source>
        <translation>%1 : abandonné</translation>
    </message>
    <message>
        <source>%1: given up, %2 of %3 not answered</source>
        <translation>%1 : abandonné, %2 sur %3 sans réponse</translation>
    </message>
    <message>
        <source>%1: last record %2 min ago</source>
        <translation>%1 : reçu il y a %2 min</translation>
    </message>
    <message>
        <source>%1: last record %2 s ago</source>
        <translation>%1 : reçu il y a %2 s</translation>
    </message>
    <message>
        <source>%1: last record over %2 s ago</source>
        <translation>%1 : reçu il y a plus de %2 s</translation>
    </message>
    <message>
        <source>%1: live</source>
        <translation>%1 : en direct</translation>
    </message>
    <message>
        <source>%1: made at %2</source>
        <translation>%1 : enregistré à %2</translation>
    </message>
    <message>
        <source>%1: mean of %2 spectra, %3 from line to line</source>
        <translation>%1 : moyenne de %2 spectres, %3 de raie en raie</translation>
    </message>
    <message>
        <source>%1: no answer to %2 of %3 questions</source>
        <translation>%1 : %2 questions sur %3 sans réponse</translation>
    </message>
    <message>
        <source>%1: no answer to %2 of %3 questions, %4 not asked</source>
        <translation>%1 : %2 questions sur %3 sans réponse, %4 non posées</translation>
    </message>
    <message>
        <source>%1: no record yet</source>
        <translation>%1 : pas encore d'enregistrement</translation>
    </message>
    <message>
        <source>%1: not known whether recorded at %2</source>
        <translation>%1 : on ignore si l'enregistrement est à %2</translation>
    </message>
    <message>
        <source>%1: not the channel, but %2</source>
        <translation>%1 : pas la voie, mais %2</translation>
    </message>
    <message>
        <source>%1: question %2 of %3</source>
        <translation>%1 : question %2 sur %3</translation>
    </message>
    <message>
        <source>%1: question %2 of %3, %4 not answered</source>
        <translation>%1 : question %2 sur %3, %4 sans réponse</translation>
    </message>
    <message>
        <source>%1: recorded at %2, not at %3</source>
        <translation>%1 : enregistrée à %2, et non à %3</translation>
    </message>
    <message>
        <source>%1: scale not known</source>
        <translation>%1 : échelle inconnue</translation>
    </message>
    <message>
        <source>%1: setting %2 of %3</source>
        <translation>%1 : réglage %2 sur %3</translation>
    </message>
    <message>
        <source>%1: setting %2 of %3, %4 not confirmed</source>
        <translation>%1 : réglage %2 sur %3, %4 non confirmés</translation>
    </message>
    <message>
        <source>%1: unchanged for %2 min</source>
        <translation>%1 : inchangée depuis %2 min</translation>
    </message>
    <message>
        <source>%1: unchanged for %2 s</source>
        <translation>%1 : inchangée depuis %2 s</translation>
    </message>
    <message>
        <source>%1: wait until the autoset is over</source>
        <translation>%1 : attendez la fin du réglage automatique</translation>
    </message>
    <message>
        <source>%1: wait until the settings have been sent</source>
        <translation>%1 : attendez que les réglages soient envoyés</translation>
    </message>
    <message>
        <source>(%1 measured so far)</source>
        <translation>(%1 déjà mesurés)</translation>
    </message>
    <message>
        <source>(of several ports)</source>
        <translation>(de plusieurs ports)</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 enregistrement</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 ligne</translation>
    </message>
    <message>
        <source>100mV per division</source>
        <translation>100 mV par division</translation>
    </message>
    <message>
        <source>100ms per division</source>
        <translation>100 ms par division</translation>
    </message>
    <message>
        <source>100ns per division</source>
        <translation>100 ns par division</translation>
    </message>
    <message>
        <source>100us per division</source>
        <translation>100 µs par division</translation>
    </message>
    <message>
        <source>10mV per division</source>
        <translation>10 mV par division</translation>
    </message>
    <message>
        <source>10ms per division</source>
        <translation>10 ms par division</translation>
    </message>
    <message>
        <source>10ns per division</source>
        <translation>10 ns par division</translation>
    </message>
    <message>
        <source>10us per division</source>
        <translation>10 µs par division</translation>
    </message>
    <message>
        <source>1V per division</source>
        <translation>1 V par division</translation>
    </message>
    <message>
        <source>1ms per division</source>
        <translation>1 ms par division</translation>
    </message>
    <message>
        <source>1s per division</source>
        <translation>1 s par division</translation>
    </message>
    <message>
        <source>1us per division</source>
        <translation>1 µs par division</translation>
    </message>
    <message>
        <source>200mV per division</source>
        <translation>200 mV par division</translation>
    </message>
    <message>
        <source>200ms per division</source>
        <translation>200 ms par division</translation>
    </message>
    <message>
        <source>200ns per division</source>
        <translation>200 ns par division</translation>
    </message>
    <message>
        <source>200us per division</source>
        <translation>200 µs par division</translation>
    </message>
    <message>
        <source>20mV per division</source>
        <translation>20 mV par division</translation>
    </message>
    <message>
        <source>20ms per division</source>
        <translation>20 ms par division</translation>
    </message>
    <message>
        <source>20ns per division</source>
        <translation>20 ns par division</translation>
    </message>
    <message>
        <source>20us per division</source>
        <translation>20 µs par division</translation>
    </message>
    <message>
        <source>2V per division</source>
        <translation>2 V par division</translation>
    </message>
    <message>
        <source>2mV per division</source>
        <translation>2 mV par division</translation>
    </message>
    <message>
        <source>2ms per division</source>
        <translation>2 ms par division</translation>
    </message>
    <message>
        <source>2ns per division</source>
        <translation>2 ns par division</translation>
    </message>
    <message>
        <source>2s per division</source>
        <translation>2 s par division</translation>
    </message>
    <message>
        <source>2us per division</source>
        <translation>2 µs par division</translation>
    </message>
    <message>
        <source>500mV per division</source>
        <translation>500 mV par division</translation>
    </message>
    <message>
        <source>500ms per division</source>
        <translation>500 ms par division</translation>
    </message>
    <message>
        <source>500ns per division</source>
        <translation>500 ns par division</translation>
    </message>
    <message>
        <source>500us per division</source>
        <translation>500 µs par division</translation>
    </message>
    <message>
        <source>50mV per division</source>
        <translation>50 mV par division</translation>
    </message>
    <message>
        <source>50ms per division</source>
        <translation>50 ms par division</translation>
    </message>
    <message>
        <source>50ns per division</source>
        <translation>50 ns par division</translation>
    </message>
    <message>
        <source>50us per division</source>
        <translation>50 µs par division</translation>
    </message>
    <message>
        <source>5V per division</source>
        <translation>5 V par division</translation>
    </message>
    <message>
        <source>5mV per division</source>
        <translation>5 mV par division</translation>
    </message>
    <message>
        <source>5ms per division</source>
        <translation>5 ms par division</translation>
    </message>
    <message>
        <source>5ns per division</source>
        <translation>5 ns par division</translation>
    </message>
    <message>
        <source>5s per division</source>
        <translation>5 s par division</translation>
    </message>
    <message>
        <source>5us per division</source>
        <translation>5 µs par division</translation>
    </message>
    <message>
        <source>A record of the recorder is %1</source>
        <translation>Un enregistrement de l'enregistreur est %1</translation>
    </message>
    <message>
        <source>A reply is missing: the scales are certain in %1 s</source>
        <translation>Il manque une réponse : les échelles seront sûres dans %1 s</translation>
    </message>
    <message>
        <source>AC RMS</source>
        <translation>Efficace AC</translation>
    </message>
    <message>
        <source>About Tracewell</source>
        <translation>À propos de Tracewell</translation>
    </message>
    <message>
        <source>Acquisition mode and averaging</source>
        <translation>Mode d'acquisition et moyennage</translation>
    </message>
    <message>
        <source>Advanced trigger: Delay</source>
        <translation>Déclenchement avancé : retard</translation>
    </message>
    <message>
        <source>Advanced trigger: Event</source>
        <translation>Déclenchement avancé : événement</translation>
    </message>
    <message>
        <source>Advanced trigger: Level</source>
        <translation>Déclenchement avancé : niveau</translation>
    </message>
    <message>
        <source>Advanced trigger: Mode</source>
        <translation>Déclenchement avancé : mode</translation>
    </message>
    <message>
        <source>Advanced trigger: Type</source>
        <translation>Déclenchement avancé : type</translation>
    </message>
    <message>
        <source>Age of the traces</source>
        <translation>Âge des traces</translation>
    </message>
    <message>
        <source>All of channel 1</source>
        <translation>Toutes celles de la voie 1</translation>
    </message>
    <message>
        <source>All of channel 2</source>
        <translation>Toutes celles de la voie 2</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>Amplitude</translation>
    </message>
    <message>
        <source>Amplitude: high level less low level</source>
        <translation>Amplitude : niveau haut moins niveau bas</translation>
    </message>
    <message>
        <source>An error has stopped the acquisition</source>
        <translation>Une erreur a arrêté l'acquisition</translation>
    </message>
    <message>
        <source>Answers that did not end in time: %1 in a minute</source>
        <translation>Réponses inachevées à temps : %1 en une minute</translation>
    </message>
    <message>
        <source>Attenuation of the probe</source>
        <translation>Atténuation de la sonde</translation>
    </message>
    <message>
        <source>Autoset</source>
        <translation>Réglage automatique en cours</translation>
    </message>
    <message>
        <source>Autoset: the scales are not known until it is over</source>
        <translation>Réglage automatique : les échelles ne seront connues qu'à la fin</translation>
    </message>
    <message>
        <source>Bandwidth limit against noise</source>
        <translation>Limitation de la bande passante contre le bruit</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>Niveau bas</translation>
    </message>
    <message>
        <source>Before it: %1</source>
        <translation>Avant : %1</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Sonnerie</translation>
    </message>
    <message>
        <source>Both channels</source>
        <translation>Les deux voies</translation>
    </message>
    <message>
        <source>Brightness of the grid on the instrument, in percent</source>
        <translation>Luminosité de la grille sur l'instrument, en pour cent</translation>
    </message>
    <message>
        <source>Brightness of the screen of the instrument</source>
        <translation>Luminosité de l'écran de l'instrument</translation>
    </message>
    <message>
        <source>Brightness of the traces on the instrument, in percent</source>
        <translation>Luminosité des traces sur l'instrument, en pour cent</translation>
    </message>
    <message>
        <source>Bytes that nobody asked for: %1 in a minute</source>
        <translation>Octets que personne n'a demandés : %1 en une minute</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Voie</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>Voie %1</translation>
    </message>
    <message>
        <source>Channel is displayed</source>
        <translation>La voie est affichée</translation>
    </message>
    <message>
        <source>Channel of the voltage read-out</source>
        <translation>Voie de la lecture de tension</translation>
    </message>
    <message>
        <source>Channel to measure</source>
        <translation>Voie à mesurer</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Voies</translation>
    </message>
    <message>
        <source>Choose and run measurements</source>
        <translation>Choisir et lancer les mesures</translation>
    </message>
    <message>
        <source>Choose from the list of commands</source>
        <translation>Choisir dans la liste des commandes</translation>
    </message>
    <message>
        <source>Choose what is measured first</source>
        <translation>Choisissez d'abord ce qui est mesuré</translation>
    </message>
    <message>
        <source>Chooses the file. A file with the same columns is continued</source>
        <translation>Choisit le fichier. Un fichier qui a les mêmes colonnes est continué</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Click or drag: a record. Shift + drag: a stretch, Esc: none. Wheel: zoom. Arrow keys, Page Up and Down, Home, End: step. Dotted line: a gap</source>
        <translation>Clic ou glisser : un enregistrement. Maj + glisser : une plage, Échap : aucune. Molette : zoom. Flèches, Page préc. et suiv., Début, Fin : pas à pas. Pointillé : une lacune</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Colour behind the traces</source>
        <translation>Couleur derrière les traces</translation>
    </message>
    <message>
        <source>Colour of the grid</source>
        <translation>Couleur de la grille</translation>
    </message>
    <message>
        <source>Colour of the trace</source>
        <translation>Couleur de la trace</translation>
    </message>
    <message>
        <source>Colours and styles of the traces</source>
        <translation>Couleurs et styles des traces</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Ligne de commande</translation>
    </message>
    <message>
        <source>Command line: Enter sends</source>
        <translation>Ligne de commande : Entrée envoie</translation>
    </message>
    <message>
        <source>Commands of the instrument</source>
        <translation>Commandes de l'instrument</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Copies the picture and its values for other programs (Ctrl+C)</source>
        <translation>Copie l'image et ses valeurs pour d'autres programmes (Ctrl+C)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Copier l'image</translation>
    </message>
    <message>
        <source>Copy the values</source>
        <translation>Copier les valeurs</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Coupling</source>
        <translation>Couplage</translation>
    </message>
    <message>
        <source>Coupling of the input</source>
        <translation>Couplage de l'entrée</translation>
    </message>
    <message>
        <source>Coupling, probe, inversion and bandwidth limit of channel 1</source>
        <translation>Couplage, sonde, inversion et limitation de bande de la voie 1</translation>
    </message>
    <message>
        <source>Coupling, probe, inversion and bandwidth limit of channel 2</source>
        <translation>Couplage, sonde, inversion et limitation de bande de la voie 2</translation>
    </message>
    <message>
        <source>Cursors</source>
        <translation>Curseurs</translation>
    </message>
    <message>
        <source>Cursors across</source>
        <translation>Curseurs verticaux</translation>
    </message>
    <message>
        <source>Cursors off</source>
        <translation>Sans curseurs</translation>
    </message>
    <message>
        <source>Cursors up</source>
        <translation>Curseurs horizontaux</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Data bits of a byte</source>
        <translation>Bits de données par octet</translation>
    </message>
    <message>
        <source>Delay to CH1</source>
        <translation>Retard sur CH1</translation>
    </message>
    <message>
        <source>Description of the chosen waveform</source>
        <translation>Description de la courbe choisie</translation>
    </message>
    <message>
        <source>Device of the port</source>
        <translation>Périphérique du port</translation>
    </message>
    <message>
        <source>Display channel 1</source>
        <translation>Afficher la voie 1</translation>
    </message>
    <message>
        <source>Display channel 2</source>
        <translation>Afficher la voie 2</translation>
    </message>
    <message>
        <source>Divisions across: the time base is not known</source>
        <translation>Divisions en abscisse : la base de temps est inconnue</translation>
    </message>
    <message>
        <source>Dots at the samples</source>
        <translation>Points aux échantillons</translation>
    </message>
    <message>
        <source>Double click: the error log</source>
        <translation>Double-clic : journal d'erreurs</translation>
    </message>
    <message>
        <source>Drawn as</source>
        <translation>Représentation</translation>
    </message>
    <message>
        <source>Draws each of the last 20 records, the older the paler</source>
        <translation>Trace chacun des 20 derniers enregistrements, les plus anciens plus pâles</translation>
    </message>
    <message>
        <source>Draws the lowest and highest value of all these records</source>
        <translation>Trace la valeur la plus basse et la plus haute de tous ces enregistrements</translation>
    </message>
    <message>
        <source>Draws the mean of all these records</source>
        <translation>Trace la moyenne de tous ces enregistrements</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Duty</source>
        <translation>Rapport cyclique</translation>
    </message>
    <message>
        <source>Empty the log</source>
        <translation>Vider le journal</translation>
    </message>
    <message>
        <source>Ends the log; the file is whole</source>
        <translation>Termine le journal ; le fichier est complet</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Enveloppe</translation>
    </message>
    <message>
        <source>Error Log</source>
        <translation>Journal d'erreurs</translation>
    </message>
    <message>
        <source>Error log</source>
        <translation>Journal d'erreurs</translation>
    </message>
    <message>
        <source>Error log: %1 new</source>
        <translation>Journal d'erreurs : %1 nouv.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Export stretch…</source>
        <translation>Exporter la plage…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Fading</source>
        <translation>Rémanence</translation>
    </message>
    <message>
        <source>Fall time</source>
        <translation>Temps de descente</translation>
    </message>
    <message>
        <source>Flat top</source>
        <translation>Flat top</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Folders; double click or Enter opens</source>
        <translation>Dossiers ; double-clic ou Entrée pour ouvrir</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Suivre</translation>
    </message>
    <message>
        <source>Format of the picture file</source>
        <translation>Format du fichier image</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Frequency Reject</source>
        <translation>Réjection de fréquence</translation>
    </message>
    <message>
        <source>Goes to a pinned record; it stays when others go</source>
        <translation>Va à un enregistrement épinglé ; il reste quand les autres partent</translation>
    </message>
    <message>
        <source>Goes with the newest record (F)</source>
        <translation>Suit l'enregistrement le plus récent (F)</translation>
    </message>
    <message>
        <source>Graph of the record</source>
        <translation>Graphe de l'enregistrement</translation>
    </message>
    <message>
        <source>Hann</source>
        <translation>Hann</translation>
    </message>
    <message>
        <source>Hann tells close frequencies apart, flat top shows true levels</source>
        <translation>Hann sépare les fréquences proches, flat top montre les niveaux exacts</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>High level</source>
        <translation>Niveau haut</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Highest value</source>
        <translation>Valeur maximale</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Indication</translation>
    </message>
    <message>
        <source>Horizontal position in divisions</source>
        <translation>Position horizontale, en divisions</translation>
    </message>
    <message>
        <source>Horizontal position in divisions; double click for zero</source>
        <translation>Position horizontale, en divisions ; double-clic : zéro</translation>
    </message>
    <message>
        <source>How many records before this one belong to the picture; a spectrum is their mean</source>
        <translation>Combien d'enregistrements avant celui-ci font partie de l'image ; un spectre est leur moyenne</translation>
    </message>
    <message>
        <source>How records are taken</source>
        <translation>Façon de prendre les enregistrements</translation>
    </message>
    <message>
        <source>How records are taken; type Average for averaging</source>
        <translation>Façon de prendre les enregistrements ; taper Average pour moyenner</translation>
    </message>
    <message>
        <source>How the trace looks</source>
        <translation>Aspect de la trace</translation>
    </message>
    <message>
        <source>In use by another program: %1</source>
        <translation>Utilisé par un autre programme : %1</translation>
    </message>
    <message>
        <source>In use: %1. The line settings of the setup: %2</source>
        <translation>Utilisé : %1. Réglages de ligne enregistrés : %2</translation>
    </message>
    <message>
        <source>In use: %1. The setup: %2 (OK in the RS-232 dialog applies it)</source>
        <translation>Utilisé : %1. Réglages enregistrés : %2 (OK dans le dialogue RS-232 les applique)</translation>
    </message>
    <message>
        <source>It lies over the live traces now</source>
        <translation>Il est maintenant superposé aux traces en direct</translation>
    </message>
    <message>
        <source>It may be the reply to another question</source>
        <translation>C’est peut-être la réponse à une autre question</translation>
    </message>
    <message>
        <source>Keep what has been set</source>
        <translation>Garder ce qui a été réglé</translation>
    </message>
    <message>
        <source>Keeps this record, under the name, when others go</source>
        <translation>Garde cet enregistrement, sous ce nom, quand les autres partent</translation>
    </message>
    <message>
        <source>Lay a data file over the traces</source>
        <translation>Superposer un fichier de données aux traces</translation>
    </message>
    <message>
        <source>Lay a saved waveform over the traces</source>
        <translation>Superposer une courbe enregistrée aux traces</translation>
    </message>
    <message>
        <source>Lays what is drawn over the live traces, as Load does</source>
        <translation>Superpose ce qui est tracé aux courbes en direct, comme Charger</translation>
    </message>
    <message>
        <source>Left out, with scales that are not known: %1</source>
        <translation>Omis, car leurs échelles sont inconnues : %1</translation>
    </message>
    <message>
        <source>Let go</source>
        <translation>Libérer</translation>
    </message>
    <message>
        <source>Let the instrument find its settings</source>
        <translation>Laisser l'instrument trouver ses réglages</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Like the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>Limites :</translation>
    </message>
    <message>
        <source>Line only</source>
        <translation>Trait seul</translation>
    </message>
    <message>
        <source>Line rate in bits per second</source>
        <translation>Débit de la ligne, en bits par seconde</translation>
    </message>
    <message>
        <source>Lit while the panel of the instrument is locked</source>
        <translation>Allumé tant que la face avant de l'instrument est verrouillée</translation>
    </message>
    <message>
        <source>Load the trace of channel 1</source>
        <translation>Charger la trace de la voie 1</translation>
    </message>
    <message>
        <source>Load the trace of channel 2</source>
        <translation>Charger la trace de la voie 2</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>%1 chargé</translation>
    </message>
    <message>
        <source>Loaded in the place of %1</source>
        <translation>Chargé à la place de %1</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Lost: %1</source>
        <translation>Perdu : %1</translation>
    </message>
    <message>
        <source>Low level</source>
        <translation>Niveau bas</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Lowest value</source>
        <translation>Valeur minimale</translation>
    </message>
    <message>
        <source>Manual and keys</source>
        <translation>Manuel et touches</translation>
    </message>
    <message>
        <source>Math may be on: choose an entry in its box to be sure</source>
        <translation>Le calcul est peut-être actif : choisir une entrée dans sa liste pour en être sûr</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Measure nothing</source>
        <translation>Ne rien mesurer</translation>
    </message>
    <message>
        <source>Measure time</source>
        <translation>Mesurer un temps</translation>
    </message>
    <message>
        <source>Measure voltage</source>
        <translation>Mesurer une tension</translation>
    </message>
    <message>
        <source>Measure what is ticked</source>
        <translation>Mesurer ce qui est coché</translation>
    </message>
    <message>
        <source>Measured from the samples; choose a line for its statistics</source>
        <translation>Mesuré sur les échantillons ; choisissez une ligne pour sa statistique</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Measurement 1</source>
        <translation>Mesure 1</translation>
    </message>
    <message>
        <source>Measurement 10</source>
        <translation>Mesure 10</translation>
    </message>
    <message>
        <source>Measurement 11</source>
        <translation>Mesure 11</translation>
    </message>
    <message>
        <source>Measurement 12</source>
        <translation>Mesure 12</translation>
    </message>
    <message>
        <source>Measurement 13</source>
        <translation>Mesure 13</translation>
    </message>
    <message>
        <source>Measurement 14</source>
        <translation>Mesure 14</translation>
    </message>
    <message>
        <source>Measurement 15</source>
        <translation>Mesure 15</translation>
    </message>
    <message>
        <source>Measurement 16</source>
        <translation>Mesure 16</translation>
    </message>
    <message>
        <source>Measurement 2</source>
        <translation>Mesure 2</translation>
    </message>
    <message>
        <source>Measurement 3</source>
        <translation>Mesure 3</translation>
    </message>
    <message>
        <source>Measurement 4</source>
        <translation>Mesure 4</translation>
    </message>
    <message>
        <source>Measurement 5</source>
        <translation>Mesure 5</translation>
    </message>
    <message>
        <source>Measurement 6</source>
        <translation>Mesure 6</translation>
    </message>
    <message>
        <source>Measurement 7</source>
        <translation>Mesure 7</translation>
    </message>
    <message>
        <source>Measurement 8</source>
        <translation>Mesure 8</translation>
    </message>
    <message>
        <source>Measurement 9</source>
        <translation>Mesure 9</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>Measurements of each record into a file, for hours (Ctrl+L)</source>
        <translation>Les mesures de chaque enregistrement dans un fichier, pendant des heures (Ctrl+L)</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Mesure en cours</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the pinned record</source>
        <translation>Nom de l'enregistrement épinglé</translation>
    </message>
    <message>
        <source>Name of the plot</source>
        <translation>Nom de la courbe</translation>
    </message>
    <message>
        <source>New lines in the error log</source>
        <translation>Nouvelles lignes dans le journal d'erreurs</translation>
    </message>
    <message>
        <source>Next cursor mode</source>
        <translation>Mode de curseur suivant</translation>
    </message>
    <message>
        <source>No answer to %1</source>
        <translation>Pas de réponse à %1</translation>
    </message>
    <message>
        <source>No answer to the last %1 questions</source>
        <translation>Pas de réponse aux %1 dernières questions</translation>
    </message>
    <message>
        <source>No cursors</source>
        <translation>Sans curseurs</translation>
    </message>
    <message>
        <source>No more records can be pinned</source>
        <translation>Impossible d'épingler plus d'enregistrements</translation>
    </message>
    <message>
        <source>No program here shows the manual. It is %1</source>
        <translation>Aucun programme ici n'affiche le manuel. Il se trouve dans %1</translation>
    </message>
    <message>
        <source>No record for %1 s</source>
        <translation>Aucun enregistrement depuis %1 s</translation>
    </message>
    <message>
        <source>No record yet: they are kept as they come</source>
        <translation>Pas encore d'enregistrement : ils sont gardés au fur et à mesure</translation>
    </message>
    <message>
        <source>No reference is free: press %1 first</source>
        <translation>Aucune référence n'est libre : appuyez d'abord sur %1</translation>
    </message>
    <message>
        <source>No reference is free: remove one in the panel first</source>
        <translation>Aucune référence n'est libre : retirez-en d'abord une dans le panneau</translation>
    </message>
    <message>
        <source>No room for all of %1: press %2 first</source>
        <translation>Pas assez de place pour tout %1 : appuyer d'abord sur %2</translation>
    </message>
    <message>
        <source>No rows while the traces are stopped</source>
        <translation>Aucune ligne tant que les courbes sont arrêtées</translation>
    </message>
    <message>
        <source>No set is chosen</source>
        <translation>Aucun jeu n’est choisi</translation>
    </message>
    <message>
        <source>No window</source>
        <translation>Sans fenêtre</translation>
    </message>
    <message>
        <source>Noise Reject</source>
        <translation>Réjection du bruit</translation>
    </message>
    <message>
        <source>None of channel 1</source>
        <translation>Aucune de la voie 1</translation>
    </message>
    <message>
        <source>None of channel 2</source>
        <translation>Aucune de la voie 2</translation>
    </message>
    <message>
        <source>Not a limit: %1. Write them as vpp &gt; 1.2 V; freq &lt; 990 Hz</source>
        <translation>Pas une limite : %1. Écrivez-les ainsi : vpp &gt; 1.2 V; freq &lt; 990 Hz</translation>
    </message>
    <message>
        <source>Not present: %1</source>
        <translation>Absent : %1</translation>
    </message>
    <message>
        <source>Not sent: the text has more than one line</source>
        <translation>Non envoyé : le texte a plus d'une ligne</translation>
    </message>
    <message>
        <source>Not written: records have gone meanwhile; pin what you want to keep</source>
        <translation>Non écrit : des enregistrements ont disparu entre-temps ; épinglez ceux à garder</translation>
    </message>
    <message>
        <source>Nothing pinned</source>
        <translation>Rien d'épinglé</translation>
    </message>
    <message>
        <source>Nothing to export: no record of this channel is there</source>
        <translation>Rien à exporter : aucun enregistrement de cette voie n'y figure</translation>
    </message>
    <message>
        <source>Nothing to export: the scales of these records are not known</source>
        <translation>Rien à exporter : les échelles de ces enregistrements sont inconnues</translation>
    </message>
    <message>
        <source>Nothing will be kept. %1</source>
        <translation>Rien ne sera conservé. %1</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>Number of the port</source>
        <translation>Numéro du port</translation>
    </message>
    <message>
        <source>Number of the port; 0 is the simulated instrument</source>
        <translation>Numéro du port ; 0 : instrument simulé</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Of the stretch that is marked, else of all records</source>
        <translation>De la plage marquée, sinon de tous les enregistrements</translation>
    </message>
    <message>
        <source>Open the error log</source>
        <translation>Ouvrir le journal d'erreurs</translation>
    </message>
    <message>
        <source>Overshoot</source>
        <translation>Dépassement</translation>
    </message>
    <message>
        <source>Parameter of the command</source>
        <translation>Paramètre de la commande</translation>
    </message>
    <message>
        <source>Parity bit of a byte</source>
        <translation>Bit de parité de l'octet</translation>
    </message>
    <message>
        <source>Peak to peak</source>
        <translation>Crête à crête</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>Phase to CH1</source>
        <translation>Phase sur CH1</translation>
    </message>
    <message>
        <source>Pick the time per division</source>
        <translation>Choisir le temps par division</translation>
    </message>
    <message>
        <source>Pick the volts per division of channel 1</source>
        <translation>Choisir les volts par division de la voie 1</translation>
    </message>
    <message>
        <source>Pick the volts per division of channel 2</source>
        <translation>Choisir les volts par division de la voie 2</translation>
    </message>
    <message>
        <source>Picture of the chosen waveform</source>
        <translation>Image de la courbe choisie</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Épingler</translation>
    </message>
    <message>
        <source>Pinned records</source>
        <translation>Enregistrements épinglés</translation>
    </message>
    <message>
        <source>Pinned: %1</source>
        <translation>Épinglés : %1</translation>
    </message>
    <message>
        <source>Pins each record that is beyond a limit</source>
        <translation>Épingle chaque enregistrement au-delà d'une limite</translation>
    </message>
    <message>
        <source>Positive width in percent of the period</source>
        <translation>Largeur positive en pour cent de la période</translation>
    </message>
    <message>
        <source>Print the graph</source>
        <translation>Imprimer le graphique</translation>
    </message>
    <message>
        <source>Print the picture</source>
        <translation>Imprimer l'image</translation>
    </message>
    <message>
        <source>Print the report</source>
        <translation>Imprimer le rapport</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Imprimé</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>Imprimé dans %1</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>Efficace</translation>
    </message>
    <message>
        <source>Read the instrument again with the present port settings</source>
        <translation>Relire l'instrument avec les réglages actuels du port</translation>
    </message>
    <message>
        <source>Read the instrument, then start and stop the traces</source>
        <translation>Lire l'instrument, puis démarrer et arrêter les traces</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Enregistreur</translation>
    </message>
    <message>
        <source>Recorder's log: %1</source>
        <translation>Journal de l'enregistreur : %1</translation>
    </message>
    <message>
        <source>Recorder's log: %1 cannot be written. %2. Give them up?</source>
        <translation>Journal de l'enregistreur : %1 impossibles à écrire. %2. Les abandonner ?</translation>
    </message>
    <message>
        <source>Records along time</source>
        <translation>Enregistrements dans le temps</translation>
    </message>
    <message>
        <source>Records before this one</source>
        <translation>Enregistrements avant celui-ci</translation>
    </message>
    <message>
        <source>Records in an average</source>
        <translation>Enregistrements par moyenne</translation>
    </message>
    <message>
        <source>Records stay short: %1 of %2 bytes came</source>
        <translation>Les enregistrements restent incomplets : %1 octets reçus sur %2</translation>
    </message>
    <message>
        <source>Records that came too late: %1 in a minute</source>
        <translation>Enregistrements venus trop tard : %1 en une minute</translation>
    </message>
    <message>
        <source>Records that did not come: %1 in a minute</source>
        <translation>Enregistrements qui ne sont pas venus : %1 en une minute</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>Remove the loaded waveforms</source>
        <translation>Retirer les courbes chargées</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Replies and records</source>
        <translation>Réponses et enregistrements</translation>
    </message>
    <message>
        <source>Rise time</source>
        <translation>Temps de montée</translation>
    </message>
    <message>
        <source>Root mean square</source>
        <translation>Valeur efficace</translation>
    </message>
    <message>
        <source>Rows beyond a limit name it. The short names stand in the list of measurements</source>
        <translation>Les lignes au-delà d'une limite la nomment. Les noms courts sont dans la liste des mesures</translation>
    </message>
    <message>
        <source>Run or stop the acquisition of the instrument itself</source>
        <translation>Mettre en marche ou arrêter l'acquisition de l'instrument lui-même</translation>
    </message>
    <message>
        <source>Run the quick time measurements</source>
        <translation>Lancer les mesures de temps rapides</translation>
    </message>
    <message>
        <source>Run-time error %1</source>
        <translation>Erreur d'exécution %1</translation>
    </message>
    <message>
        <source>SIMULATED</source>
        <translation>SIMULÉ</translation>
    </message>
    <message>
        <source>Samples as dots</source>
        <translation>Échantillons en points</translation>
    </message>
    <message>
        <source>Samples joined by lines</source>
        <translation>Échantillons reliés par des traits</translation>
    </message>
    <message>
        <source>Samples of a record</source>
        <translation>Échantillons par enregistrement</translation>
    </message>
    <message>
        <source>Save as a waveform set</source>
        <translation>Sauvegarder comme forme d'onde</translation>
    </message>
    <message>
        <source>Save picture and data</source>
        <translation>Enregistrer l'image et les données</translation>
    </message>
    <message>
        <source>Save the log and close</source>
        <translation>Enregistrer le journal et fermer</translation>
    </message>
    <message>
        <source>Save the report as a file</source>
        <translation>Enregistrer le rapport dans un fichier</translation>
    </message>
    <message>
        <source>Save the setup and close</source>
        <translation>Enregistrer les réglages et fermer</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Saved %1, %2 and %3 in %4</source>
        <translation>%1, %2 et %3 enregistrés dans %4</translation>
    </message>
    <message>
        <source>Saved waveforms</source>
        <translation>Courbes enregistrées</translation>
    </message>
    <message>
        <source>Saves this record as a waveform set, which Load in the panel shows (Ctrl+S)</source>
        <translation>Sauvegarde cet enregistrement comme forme d'onde, que le panneau peut charger (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Scales that are not the traces'</source>
        <translation>Échelles qui ne sont pas celles des courbes</translation>
    </message>
    <message>
        <source>Send the command</source>
        <translation>Envoyer la commande</translation>
    </message>
    <message>
        <source>Set it and stay open, to try others</source>
        <translation>Régler et rester ouvert pour en essayer d'autres</translation>
    </message>
    <message>
        <source>Setup loaded from %1</source>
        <translation>Réglages chargés depuis %1</translation>
    </message>
    <message>
        <source>Setup saved to %1</source>
        <translation>Réglages enregistrés dans %1</translation>
    </message>
    <message>
        <source>Show in the panel</source>
        <translation>Montrer dans le panneau</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>Sounds the bell at each record that is beyond a limit</source>
        <translation>Sonne à chaque enregistrement au-delà d'une limite</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Source, mode, slope and coupling of the trigger</source>
        <translation>Source, mode, front et couplage du déclenchement</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spectre</translation>
    </message>
    <message>
        <source>Start the log…</source>
        <translation>Démarrer le journal…</translation>
    </message>
    <message>
        <source>State of the acquisition</source>
        <translation>État de l'acquisition</translation>
    </message>
    <message>
        <source>State of the connection</source>
        <translation>État de la connexion</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistique</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Std deviation</source>
        <translation>Écart-type</translation>
    </message>
    <message>
        <source>Stop bits behind a byte</source>
        <translation>Bits d'arrêt après un octet</translation>
    </message>
    <message>
        <source>Stop the log</source>
        <translation>Arrêter le journal</translation>
    </message>
    <message>
        <source>Stopped: press %1 to go on</source>
        <translation>Arrêté : appuyez sur %1 pour continuer</translation>
    </message>
    <message>
        <source>Sum or difference of the channels</source>
        <translation>Somme ou différence des voies</translation>
    </message>
    <message>
        <source>Take all texts away</source>
        <translation>Retirer tous les textes</translation>
    </message>
    <message>
        <source>Take the last text away</source>
        <translation>Retirer le dernier texte</translation>
    </message>
    <message>
        <source>Text to write onto the picture</source>
        <translation>Texte à écrire sur l'image</translation>
    </message>
    <message>
        <source>The .csv is empty: no whole record of %1</source>
        <translation>Le .csv est vide : aucun enregistrement entier de %1</translation>
    </message>
    <message>
        <source>The acquisition has stopped: %1</source>
        <translation>L'acquisition s'est arrêtée : %1</translation>
    </message>
    <message>
        <source>The channels that are shown, stepped through and measured</source>
        <translation>Les voies montrées, parcourues et mesurées</translation>
    </message>
    <message>
        <source>The columns of the log</source>
        <translation>Les colonnes du journal</translation>
    </message>
    <message>
        <source>The connection is lost</source>
        <translation>La liaison est perdue</translation>
    </message>
    <message>
        <source>The connection is lost: %1</source>
        <translation>La liaison est perdue : %1</translation>
    </message>
    <message>
        <source>The cursors were read in another scale</source>
        <translation>Les curseurs ont été lus dans une autre échelle</translation>
    </message>
    <message>
        <source>The data file</source>
        <translation>Le fichier de données</translation>
    </message>
    <message>
        <source>The disk is full; waiting in memory: %1</source>
        <translation>Le disque est plein ; en attente en mémoire : %1</translation>
    </message>
    <message>
        <source>The file is not as a panel saves it: its trace may be wrong</source>
        <translation>Le fichier n'est pas tel qu'un panneau l'enregistre : sa courbe peut être fausse</translation>
    </message>
    <message>
        <source>The folder that is shown</source>
        <translation>Le dossier affiché</translation>
    </message>
    <message>
        <source>The instrument is being read</source>
        <translation>Lecture de l'instrument en cours</translation>
    </message>
    <message>
        <source>The instrument is busy: %1</source>
        <translation>L'instrument est occupé : %1</translation>
    </message>
    <message>
        <source>The instrument is stopped: press %1</source>
        <translation>L'appareil est arrêté : appuyez sur %1</translation>
    </message>
    <message>
        <source>The instrument is stopped: press %1 twice</source>
        <translation>L'appareil est arrêté : appuyez deux fois sur %1</translation>
    </message>
    <message>
        <source>The instrument may have another value</source>
        <translation>L’instrument a peut-être une autre valeur</translation>
    </message>
    <message>
        <source>The knob stands there already: turn it away and back to send its scale</source>
        <translation>Le bouton est déjà sur ce cran : tournez-le ailleurs puis revenez pour envoyer son échelle</translation>
    </message>
    <message>
        <source>The last question had no answer: press %1</source>
        <translation>La dernière question est restée sans réponse : appuyer sur %1</translation>
    </message>
    <message>
        <source>The log goes on</source>
        <translation>Le journal continue</translation>
    </message>
    <message>
        <source>The log has ended</source>
        <translation>Le journal est terminé</translation>
    </message>
    <message>
        <source>The old %1 is kept as %2</source>
        <translation>L'ancien %1 est conservé sous %2</translation>
    </message>
    <message>
        <source>The picture to save</source>
        <translation>L'image à enregistrer</translation>
    </message>
    <message>
        <source>The picture's name must end in png, jpg, bmp, gif, pcx or tif</source>
        <translation>Le nom de l'image doit finir par png, jpg, bmp, gif, pcx ou tif</translation>
    </message>
    <message>
        <source>The port in use</source>
        <translation>Le port utilisé</translation>
    </message>
    <message>
        <source>The product</source>
        <translation>Le produit</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>Le rapport</translation>
    </message>
    <message>
        <source>The same sweep was fetched: %1</source>
        <translation>Même balayage reçu : %1</translation>
    </message>
    <message>
        <source>The scales are not known: press %1 to read them</source>
        <translation>Les échelles ne sont pas connues : appuyez sur %1 pour les lire</translation>
    </message>
    <message>
        <source>The scales are not known: press %1 to read them, then F5 to go on</source>
        <translation>Échelles inconnues : %1 pour les lire, puis F5 pour continuer</translation>
    </message>
    <message>
        <source>The scales may be those of another instrument: press %1 to read them</source>
        <translation>Les calibres sont peut-être ceux d'un autre instrument : appuyer sur %1 pour les lire</translation>
    </message>
    <message>
        <source>The setup could not be saved to %1.</source>
        <translation>Les réglages n'ont pas pu être enregistrés dans %1.</translation>
    </message>
    <message>
        <source>The unit of the levels</source>
        <translation>L'unité des niveaux</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>There is no such port</source>
        <translation>Ce port n'existe pas</translation>
    </message>
    <message>
        <source>These traces are of an earlier connection</source>
        <translation>Ces courbes viennent d'une connexion précédente</translation>
    </message>
    <message>
        <source>This record alone</source>
        <translation>Cet enregistrement seul</translation>
    </message>
    <message>
        <source>This record is cut: a set needs a whole one</source>
        <translation>Cet enregistrement est tronqué : il en faut un entier</translation>
    </message>
    <message>
        <source>This record may go with the others again</source>
        <translation>Cet enregistrement peut de nouveau partir avec les autres</translation>
    </message>
    <message>
        <source>This version has new files beside those that you have changed: %1</source>
        <translation>Cette version a placé de nouveaux fichiers à côté de ceux que vous avez modifiés : %1</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Time of the falling edge</source>
        <translation>Temps de descente</translation>
    </message>
    <message>
        <source>Time of the rising edge</source>
        <translation>Temps de montée</translation>
    </message>
    <message>
        <source>Time per division</source>
        <translation>Temps par division</translation>
    </message>
    <message>
        <source>Time per division: drag, wheel, arrow keys, or click a value</source>
        <translation>Temps par division : glisser, molette, flèches ou clic sur une valeur</translation>
    </message>
    <message>
        <source>Time that the instrument takes</source>
        <translation>Temps que prend l'instrument</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Niveau haut</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>Trace upside down</source>
        <translation>Trace inversée</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Traces</translation>
    </message>
    <message>
        <source>Traces paused for %1</source>
        <translation>Courbes en pause : %1</translation>
    </message>
    <message>
        <source>Traces: drag the cursors, or move them with the arrow keys; C changes the cursor. Double click or E: larger, Escape: back</source>
        <translation>Traces : glisser les curseurs ou les déplacer avec les flèches ; C change de curseur. Double-clic ou E : agrandir, Échap : revenir</translation>
    </message>
    <message>
        <source>Trigger level in volts</source>
        <translation>Niveau de déclenchement, en volts</translation>
    </message>
    <message>
        <source>Trigger level in volts; double click for zero</source>
        <translation>Niveau de déclenchement, en volts ; double-clic : zéro</translation>
    </message>
    <message>
        <source>Two cursors with their distance: drag them, or use the arrow keys in the graph</source>
        <translation>Deux curseurs et leur écart : faites-les glisser, ou utilisez les flèches dans le graphe</translation>
    </message>
    <message>
        <source>V/div not known</source>
        <translation>V/div inconnus</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Vertical position of channel 1 in divisions</source>
        <translation>Position verticale de la voie 1, en divisions</translation>
    </message>
    <message>
        <source>Vertical position of channel 1 in divisions; double click for zero</source>
        <translation>Position verticale de la voie 1, en divisions ; double-clic : zéro</translation>
    </message>
    <message>
        <source>Vertical position of channel 2 in divisions</source>
        <translation>Position verticale de la voie 2, en divisions</translation>
    </message>
    <message>
        <source>Vertical position of channel 2 in divisions; double click for zero</source>
        <translation>Position verticale de la voie 2, en divisions ; double-clic : zéro</translation>
    </message>
    <message>
        <source>Volts per division of channel 1</source>
        <translation>Volts par division de la voie 1</translation>
    </message>
    <message>
        <source>Volts per division of channel 1: drag, wheel, arrow keys, or click a value</source>
        <translation>Volts par division de la voie 1 : glisser, molette, flèches ou clic sur une valeur</translation>
    </message>
    <message>
        <source>Volts per division of channel 2</source>
        <translation>Volts par division de la voie 2</translation>
    </message>
    <message>
        <source>Volts per division of channel 2: drag, wheel, arrow keys, or click a value</source>
        <translation>Volts par division de la voie 2 : glisser, molette, flèches ou clic sur une valeur</translation>
    </message>
    <message>
        <source>Waiting for the answer to %1</source>
        <translation>En attente de la réponse à %1</translation>
    </message>
    <message>
        <source>Waiting in memory: %1. %2</source>
        <translation>En attente en mémoire : %1. %2</translation>
    </message>
    <message>
        <source>What is drawn of the records</source>
        <translation>Ce qui est tracé des enregistrements</translation>
    </message>
    <message>
        <source>What is set</source>
        <translation>Ce qui est réglé</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>Ce que l'image montre</translation>
    </message>
    <message>
        <source>What the command does</source>
        <translation>Ce que fait la commande</translation>
    </message>
    <message>
        <source>When the last record of each channel came</source>
        <translation>Quand est venu le dernier enregistrement de chaque voie</translation>
    </message>
    <message>
        <source>Who saves it</source>
        <translation>Qui enregistre</translation>
    </message>
    <message>
        <source>Why the set is not loaded</source>
        <translation>Pourquoi le jeu n’est pas chargé</translation>
    </message>
    <message>
        <source>Width of the negative pulse</source>
        <translation>Largeur de l'impulsion négative</translation>
    </message>
    <message>
        <source>Width of the positive pulse</source>
        <translation>Largeur de l'impulsion positive</translation>
    </message>
    <message>
        <source>Window of the spectrum</source>
        <translation>Fenêtre du spectre</translation>
    </message>
    <message>
        <source>With the last %1</source>
        <translation>Avec les %1 derniers</translation>
    </message>
    <message>
        <source>With the one before</source>
        <translation>Avec le précédent</translation>
    </message>
    <message>
        <source>Without CH%1, which is of another sweep</source>
        <translation>Sans CH%1, qui est d'un autre balayage</translation>
    </message>
    <message>
        <source>Write the shown record to text.csv</source>
        <translation>Écrire l'enregistrement affiché dans text.csv</translation>
    </message>
    <message>
        <source>Write the text where the picture is clicked</source>
        <translation>Écrire le texte à l'endroit cliqué de l'image</translation>
    </message>
    <message>
        <source>Writes the marked stretch, else this record, as CSV in volts and seconds (Ctrl+E)</source>
        <translation>Écrit la plage marquée, sinon cet enregistrement, en CSV en volts et secondes (Ctrl+E)</translation>
    </message>
    <message>
        <source>X-Y</source>
        <translation>X-Y</translation>
    </message>
    <message>
        <source>X-Y needs both channels of one sweep: display both, press Run/Stop, and wait for both</source>
        <translation>X-Y demande les deux voies d'un même balayage : affichez les deux, appuyez sur Run/Stop et attendez les deux</translation>
    </message>
    <message>
        <source>another port</source>
        <translation>autre port</translation>
    </message>
    <message>
        <source>clipped</source>
        <translation>écrêté</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>plat</translation>
    </message>
    <message>
        <source>from the zero of %1:</source>
        <translation>depuis le zéro de %1 :</translation>
    </message>
    <message>
        <source>irregular</source>
        <translation>irrégulier</translation>
    </message>
    <message>
        <source>less than a period</source>
        <translation>moins d'une période</translation>
    </message>
    <message>
        <source>math, which has no volts</source>
        <translation>calcul, sans volts</translation>
    </message>
    <message>
        <source>more than 500 lines of data</source>
        <translation>plus de 500 lignes de données</translation>
    </message>
    <message>
        <source>not certain</source>
        <translation>incertain</translation>
    </message>
    <message>
        <source>not of one sweep</source>
        <translation>pas du même balayage</translation>
    </message>
    <message>
        <source>nothing fetched</source>
        <translation>rien de lu</translation>
    </message>
    <message>
        <source>opened anew</source>
        <translation>rouvert</translation>
    </message>
    <message>
        <source>other period</source>
        <translation>autre période</translation>
    </message>
    <message>
        <source>other scales</source>
        <translation>autres échelles</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>épinglé</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>port %1</translation>
    </message>
    <message>
        <source>port %1 - %2</source>
        <translation>port %1 - %2</translation>
    </message>
    <message>
        <source>port %1, %2 baud %3</source>
        <translation>port %1, %2 bauds %3</translation>
    </message>
    <message>
        <source>record %1 of %2</source>
        <translation>enregistrement %1 sur %2</translation>
    </message>
    <message>
        <source>record cut</source>
        <translation>enregistrement tronqué</translation>
    </message>
    <message>
        <source>s/div not known</source>
        <translation>s/div inconnues</translation>
    </message>
    <message>
        <source>scale not known</source>
        <translation>échelle inconnue</translation>
    </message>
    <message>
        <source>simulated instrument</source>
        <translation>instrument simulé</translation>
    </message>
    <message>
        <source>stopped meanwhile</source>
        <translation>arrêté entre-temps</translation>
    </message>
    <message>
        <source>too few samples</source>
        <translation>trop peu d'échantillons</translation>
    </message>
</context>
</TS>
