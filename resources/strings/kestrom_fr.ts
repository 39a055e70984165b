<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="KS_help">
        <source></source>
        <translation>Kestrom lit le diagnostic embarqué (OBD-II) de votre voiture au moyen d'un adaptateur de type ELM327.

Connexion : branchez l'adaptateur sur la prise de diagnostic de la voiture, en général sous le volant, et mettez le contact. Avec un adaptateur Wi-Fi, connectez d'abord cet ordinateur au réseau sans fil de l'adaptateur, puis choisissez Wi-Fi dans les préférences et saisissez l'adresse et le port (le plus souvent 192.168.0.10 et 35000). Avec un adaptateur Bluetooth, choisissez Bluetooth ; la première tâche que vous lancez demande quel appareil utiliser. Avec un câble, choisissez son port. Le Wi-Fi et les câbles sont rapides, le Bluetooth l'est moins, le Bluetooth Low Energy encore moins ; les infobulles de ces choix disent ce que chacun demande et que faire en cas d'échec.

Codes défaut : « Lire les codes » affiche les codes enregistrés avec leur signification, le témoin d'anomalie et l'état des moniteurs. « Effacer les codes » efface les codes, éteint le témoin et remet les moniteurs à zéro ; faites-le moteur arrêté, et seulement après avoir noté les codes.

État des moniteurs : OK, le contrôle est terminé ; X, il ne l'est pas encore (ce n'est pas un défaut : il se fait en roulant) ; N/A, cette voiture n'a pas ce moniteur. Si un diesel a un autre moniteur à la même place, le nom indique les deux. Les noms et les descriptions restent pour l'instant en anglais.

Données en direct : choisissez le type de session et appuyez sur le bouton de démarrage. Chaque paramètre a son petit graphique ; cliquez dessus pour le voir en grand et sur le cadran, maintenez Ctrl pour en choisir un autre pour le second cadran. La liste des paramètres, les unités et la langue se règlent dans les préférences.

Journaux : lorsque « Enregistrer les sessions » est coché dans les préférences, chaque session est écrite dans son propre fichier du dossier « loggies » ; l'infobulle de Journaux indique où il se trouve, et Fichier &gt; Exporter un journal… les exporte en tableaux.

Expert : tapez une commande de l'adaptateur (AT I) ou une requête (01 0C) et lisez la réponse brute.

Pas de réponse ? Vérifiez le contact, la prise et la liaison sans fil, et fermez les autres programmes qui utilisent l'adaptateur.</translation>
    </message>
    <message id="no_reply_from_car_MSG">
        <source></source>
        <translation>La voiture n'a pas répondu. Mettez le contact et réessayez.</translation>
    </message>
    <message id="no_reply_from_car_MSG_BT">
        <source></source>
        <translation>L'adaptateur fonctionne, mais la voiture n'a pas répondu.

Veuillez vérifier que :
• le contact est mis ou le moteur tourne ;
• l'adaptateur est bien enfoncé dans la prise de diagnostic ;
• l'adaptateur choisi dans la liste Bluetooth est celui de cette voiture ;
• aucun téléphone ni autre programme n'utilise l'adaptateur en même temps ;
• la voiture prend en charge OBD-II.</translation>
    </message>
    <message id="no_reply_from_car_MSG_TCP">
        <source></source>
        <translation>L'adaptateur fonctionne, mais la voiture n'a pas répondu.

Veuillez vérifier que :
• le contact est mis ou le moteur tourne ;
• l'adaptateur est bien enfoncé dans la prise de diagnostic ;
• cet ordinateur est connecté au réseau Wi-Fi de l'adaptateur de cette voiture ;
• aucun téléphone ni autre programme n'utilise l'adaptateur en même temps ;
• la voiture prend en charge OBD-II.</translation>
    </message>
    <message id="no_reply_from_car_MSG_serial">
        <source></source>
        <translation>L'adaptateur fonctionne, mais la voiture n'a pas répondu.

Veuillez vérifier que :
• le contact est mis ou le moteur tourne ;
• l'adaptateur est bien enfoncé dans la prise de diagnostic ;
• aucun autre programme n'utilise l'adaptateur en même temps ;
• la voiture prend en charge OBD-II.</translation>
    </message>
    <message id="init_OBD_error_MSG">
        <source></source>
        <translation>L'adaptateur n'a pas pu initialiser le bus de diagnostic de la voiture. Coupez puis remettez le contact, vérifiez que l'adaptateur est bien enfoncé dans la prise de diagnostic, et réessayez.</translation>
    </message>
    <message id="blank_input_MSG">
        <source></source>
        <translation>Tapez d'abord une commande, par exemple AT I ou 01 0C.</translation>
    </message>
    <message id="FIELD_ENGINE_MPG">
        <source></source>
        <translation>Distance par litre</translation>
    </message>
    <message id="FIELD_ENGINE_BOOST">
        <source></source>
        <translation>Pression de suralimentation</translation>
    </message>
    <message id="tcp_no_answer_yet_MSG">
        <source></source>
        <translation>L'adaptateur n'a pas encore répondu. Vérifiez que cet ordinateur est connecté au réseau sans fil de l'adaptateur et que l'adresse et le port sont corrects.</translation>
    </message>
    <message id="serial_no_answer_yet_MSG">
        <source></source>
        <translation>L'adaptateur n'a pas encore répondu. Vérifiez le câble et le port dans les préférences.</translation>
    </message>
    <message id="serial_not_chosen">
        <source></source>
        <translation>Aucun port n'est choisi. Branchez l'adaptateur et choisissez son port dans les préférences.</translation>
    </message>
    <message id="serial_not_there">
        <source></source>
        <translation>%1 n'existe pas. Branchez l'adaptateur ou choisissez un autre port dans les préférences.</translation>
    </message>
    <message id="serial_taken">
        <source></source>
        <translation>%1 a disparu : un autre service s'est emparé du câble de l'adaptateur. Le plus souvent, c'est brltty, pour les afficheurs braille. Si personne n'en a besoin, tapez « sudo apt remove brltty » dans un terminal et rebranchez l'adaptateur.</translation>
    </message>
    <message id="serial_not_permitted">
        <source></source>
        <translation>Vous n'avez pas le droit d'utiliser %1 : ce port appartient au groupe %2. Tapez « sudo usermod -a -G %2 $USER » dans un terminal, puis déconnectez-vous et reconnectez-vous.</translation>
    </message>
    <message id="serial_busy">
        <source></source>
        <translation>Un autre programme a ouvert %1. Fermez-le et réessayez. ModemManager libère le port de lui-même en moins de trente secondes.</translation>
    </message>
    <message id="serial_silent">
        <source></source>
        <translation>Aucun adaptateur ne répond sur %1 (essayé : %2 bauds). Vérifiez que c'est le port de l'adaptateur, que l'adaptateur est dans la prise de diagnostic, et la vitesse dans les préférences.</translation>
    </message>
    <message id="serial_other">
        <source></source>
        <translation>%1 ne peut pas être utilisé : %2</translation>
    </message>
    <message id="bt_no_adapter_MSG">
        <source></source>
        <translation>Aucun adaptateur Bluetooth choisi. Appuyez à nouveau pour en choisir un.</translation>
    </message>
    <message id="bt_not_reached_MSG">
        <source></source>
        <translation>Pas de connexion Bluetooth. Appuyez de nouveau pour réessayer. Pour choisir un autre adaptateur, décochez « Réutiliser le dernier adaptateur » dans les préférences.</translation>
    </message>
    <message id="bt_closed_MSG">
        <source></source>
        <translation>La connexion Bluetooth est terminée. Appuyez sur Reconnecter pour la rétablir.</translation>
    </message>
    <message id="ui_where_to_begin">
        <source></source>
        <translation>Choisissez Préférences pour configurer votre adaptateur, puis Codes défaut pour lire la voiture.</translation>
    </message>
    <message id="ui_start_wifi">
        <source></source>
        <translation>Adaptateur &amp;Wi-Fi</translation>
    </message>
    <message id="ui_start_bluetooth">
        <source></source>
        <translation>Adaptateur &amp;Bluetooth</translation>
    </message>
    <message id="ui_start_serial">
        <source></source>
        <translation>Câble &amp;USB ou série</translation>
    </message>
    <message id="ui_start_demo">
        <source></source>
        <translation>Essayer avec la voiture &amp;virtuelle</translation>
    </message>
    <message id="ui_rail_codes">
        <source></source>
        <translation>&amp;Codes défaut</translation>
    </message>
    <message id="ui_rail_live">
        <source></source>
        <translation>En &amp;direct</translation>
    </message>
    <message id="ui_rail_logs">
        <source></source>
        <translation>&amp;Journaux</translation>
    </message>
    <message id="ui_rail_logs_hint">
        <source></source>
        <translation>Données en direct écrit les journaux ; Fichier &gt; Exporter un journal… les exporte sous forme de tableaux</translation>
    </message>
    <message id="ui_rail_expert">
        <source></source>
        <translation>&amp;Expert</translation>
    </message>
    <message id="ui_rail_prefs">
        <source></source>
        <translation>&amp;Préférences</translation>
    </message>
    <message id="ui_rail_help">
        <source></source>
        <translation>&amp;Aide</translation>
    </message>
    <message id="ui_busy">
        <source></source>
        <translation>Occupé</translation>
    </message>
    <message id="ui_status">
        <source></source>
        <translation>État</translation>
    </message>
    <message id="ui_codes_title">
        <source></source>
        <translation>Codes défaut</translation>
    </message>
    <message id="ui_read_codes">
        <source></source>
        <translation>&amp;Lire les codes</translation>
    </message>
    <message id="ui_read_codes_hint">
        <source></source>
        <translation>Lire le témoin, les codes enregistrés et l'état des moniteurs</translation>
    </message>
    <message id="ui_clear_codes">
        <source></source>
        <translation>E&amp;ffacer les codes…</translation>
    </message>
    <message id="ui_clear_codes_hint">
        <source></source>
        <translation>Effacer les codes enregistrés et éteindre le témoin</translation>
    </message>
    <message id="ui_lamp">
        <source></source>
        <translation>Témoin d'anomalie</translation>
    </message>
    <message id="ui_count">
        <source></source>
        <translation>Codes défaut</translation>
    </message>
    <message id="ui_read_on">
        <source></source>
        <translation>Lu le</translation>
    </message>
    <message id="ui_adapter">
        <source></source>
        <translation>Adaptateur</translation>
    </message>
    <message id="ui_protocol">
        <source></source>
        <translation>Protocole</translation>
    </message>
    <message id="ui_units">
        <source></source>
        <translation>Calculateurs</translation>
    </message>
    <message id="ui_col_code">
        <source></source>
        <translation>Code</translation>
    </message>
    <message id="ui_col_description">
        <source></source>
        <translation>Description</translation>
    </message>
    <message id="ui_codes_table">
        <source></source>
        <translation>Codes défaut enregistrés</translation>
    </message>
    <message id="ui_codes_table_hint">
        <source></source>
        <translation>Les descriptions sont en anglais, dans les termes de la norme SAE J2012</translation>
    </message>
    <message id="ui_codes_empty">
        <source></source>
        <translation>Les codes défaut enregistrés apparaissent ici après « Lire les codes ».</translation>
    </message>
    <message id="ui_codes_none">
        <source></source>
        <translation>La voiture ne signale aucun code défaut enregistré.</translation>
    </message>
    <message id="ui_codes_unread">
        <source></source>
        <translation>Les codes défaut n'ont pas pu être lus en entier.</translation>
    </message>
    <message id="ui_col_state">
        <source></source>
        <translation>État</translation>
    </message>
    <message id="ui_col_monitor">
        <source></source>
        <translation>Moniteur</translation>
    </message>
    <message id="ui_col_kind">
        <source></source>
        <translation>Type</translation>
    </message>
    <message id="ui_readiness_table">
        <source></source>
        <translation>État des moniteurs</translation>
    </message>
    <message id="ui_readiness_hint">
        <source></source>
        <translation>OK : le contrôle est terminé
X : pas encore terminé ; ce n'est pas un défaut, le contrôle se fait en roulant
N/A : cette voiture n'a pas ce moniteur
Les noms des moniteurs sont en anglais.</translation>
    </message>
    <message id="ui_readiness_empty">
        <source></source>
        <translation>L'état des moniteurs apparaît ici après « Lire les codes ».</translation>
    </message>
    <message id="ui_live_title">
        <source></source>
        <translation>Données en direct</translation>
    </message>
    <message id="ui_stall_hint">
        <source></source>
        <translation>en attente de l'adaptateur depuis %1 s</translation>
    </message>
    <message id="ui_reconnect">
        <source></source>
        <translation>&amp;Reconnecter</translation>
    </message>
    <message id="ui_reconnect_hint">
        <source></source>
        <translation>Ferme la liaison avec l'adaptateur et la rétablit</translation>
    </message>
    <message id="ui_reconnected">
        <source></source>
        <translation>De nouveau connecté. Appuyez sur un bouton pour continuer.</translation>
    </message>
    <message id="ui_settings_not_saved">
        <source></source>
        <translation>Les préférences n'ont pas pu être enregistrées. Elles restent valables jusqu'à la fermeture de Kestrom, puis sont perdues. Le disque est-il plein ou protégé en écriture ?</translation>
    </message>
    <message id="ui_live_run">
        <source></source>
        <translation>&amp;Session :</translation>
    </message>
    <message id="ui_live_run_hint">
        <source></source>
        <translation>Type de session</translation>
    </message>
    <message id="ui_live_zoom">
        <source></source>
        <translation>&amp;Zoom :</translation>
    </message>
    <message id="ui_live_zoom_hint">
        <source></source>
        <translation>Nombre de dernières mesures affichées dans le grand graphique</translation>
    </message>
    <message id="ui_live_start">
        <source></source>
        <translation>Démarrer la session (Ctrl+R)</translation>
    </message>
    <message id="ui_live_stop">
        <source></source>
        <translation>Arrêter la session (Ctrl+R)</translation>
    </message>
    <message id="ui_live_next_sensors">
        <source></source>
        <translation>Sondes sui&amp;vantes</translation>
    </message>
    <message id="ui_live_strip">
        <source></source>
        <translation>Paramètres</translation>
    </message>
    <message id="ui_live_strip_hint">
        <source></source>
        <translation>Cliquez pour l'afficher dans le grand graphique ; Ctrl ou Maj pour plusieurs</translation>
    </message>
    <message id="ui_live_chart">
        <source></source>
        <translation>Graphique</translation>
    </message>
    <message id="ui_live_dial_1">
        <source></source>
        <translation>Premier cadran</translation>
    </message>
    <message id="ui_live_dial_2">
        <source></source>
        <translation>Deuxième cadran</translation>
    </message>
    <message id="ui_live_empty">
        <source></source>
        <translation>Aucun paramètre n'est choisi. Choisissez dans les préférences les paramètres à interroger.</translation>
    </message>
    <message id="ui_live_press_start">
        <source></source>
        <translation>Le bouton rond en haut à droite démarre la session.</translation>
    </message>
    <message id="ui_live_second_dial">
        <source></source>
        <translation>Ctrl+clic sur un deuxième paramètre ci-dessus affiche ici son cadran.</translation>
    </message>
    <message id="ui_fast">
        <source></source>
        <translation>Rapide</translation>
    </message>
    <message id="ui_fast_hint">
        <source></source>
        <translation>Demande plusieurs valeurs à la fois et n’attend pas plus que nécessaire, pour autant que l’adaptateur et la voiture prouvent qu’ils le peuvent. Certaines voitures le supportent mal : désactivez-le si des voyants s’allument ou si le moteur tourne mal. Vaut à partir du prochain démarrage.</translation>
    </message>
    <message id="ui_fast_no_use">
        <source></source>
        <translation>Cette voiture ne répond pas plus vite qu’elle n’est déjà interrogée.</translation>
    </message>
    <message id="ui_fast_rate">
        <source></source>
        <translation>%1 valeurs/s</translation>
    </message>
    <message id="ui_fast_rate_hint">
        <source></source>
        <translation>Valeurs par seconde, et comment elles sont demandées</translation>
    </message>
    <message id="ui_fast_level_0">
        <source></source>
        <translation>une à une</translation>
    </message>
    <message id="ui_fast_level_1">
        <source></source>
        <translation>sans attente</translation>
    </message>
    <message id="ui_fast_level_2">
        <source></source>
        <translation>plusieurs à la fois</translation>
    </message>
    <message id="ui_fast_level_3">
        <source></source>
        <translation>plusieurs, sans attente</translation>
    </message>
    <message id="ui_fast_level_down">
        <source></source>
        <translation>Des réponses ne convenaient pas : l’échantillonnage rapide continue plus prudemment</translation>
    </message>
    <message id="ui_fast_given_up">
        <source></source>
        <translation>Des réponses ne convenaient pas : l’échantillonnage continue valeur par valeur</translation>
    </message>
    <message id="ui_live_follow">
        <source></source>
        <translation>Suivre le &amp;graphique</translation>
    </message>
    <message id="ui_live_follow_hint">
        <source></source>
        <translation>Le premier cadran suit alors le paramètre du grand graphique.</translation>
    </message>
    <message id="ui_live_dial_unmoved">
        <source></source>
        <translation>Rien ne fait bouger ce cadran : choisissez le premier paramètre ou « Suivre le graphique ».</translation>
    </message>
    <message id="ui_live_length">
        <source></source>
        <translation>Durée de la session</translation>
    </message>
    <message id="ui_live_reading">
        <source></source>
        <translation>%1 : %2, plage de %3 à %4</translation>
    </message>
    <message id="ui_live_log_failed">
        <source></source>
        <translation>Enregistrement interrompu :</translation>
    </message>
    <message id="ui_live_no_sensors">
        <source></source>
        <translation>La voiture ne signale aucune sonde à oxygène</translation>
    </message>
    <message id="ui_expert_title">
        <source></source>
        <translation>Expert</translation>
    </message>
    <message id="ui_transcript">
        <source></source>
        <translation>Transcription</translation>
    </message>
    <message id="ui_transcript_empty">
        <source></source>
        <translation>Les commandes et les réponses brutes de l'adaptateur apparaissent ici.</translation>
    </message>
    <message id="ui_command">
        <source></source>
        <translation>Commande</translation>
    </message>
    <message id="ui_command_label">
        <source></source>
        <translation>Co&amp;mmande :</translation>
    </message>
    <message id="ui_command_hint">
        <source></source>
        <translation>AT I, 01 0C, 03 …</translation>
    </message>
    <message id="ui_command_too_long">
        <source></source>
        <translation>Une commande compte au plus 38 caractères. Rien n'a été envoyé.</translation>
    </message>
    <message id="ui_send">
        <source></source>
        <translation>En&amp;voyer</translation>
    </message>
    <message id="ui_prefs_title">
        <source></source>
        <translation>Préférences</translation>
    </message>
    <message id="ui_adapter_group">
        <source></source>
        <translation>Adaptateur</translation>
    </message>
    <message id="ui_bluetooth">
        <source></source>
        <translation>&amp;Bluetooth</translation>
    </message>
    <message id="ui_wifi">
        <source></source>
        <translation>&amp;Wi-Fi</translation>
    </message>
    <message id="ui_serial">
        <source></source>
        <translation>Câble USB &amp;ou série</translation>
    </message>
    <message id="ui_serial_speed">
        <source></source>
        <translation>Vitesse :</translation>
    </message>
    <message id="ui_serial_auto">
        <source></source>
        <translation>trouvée par essais</translation>
    </message>
    <message id="ui_serial_absent">
        <source></source>
        <translation>%1 (non branché)</translation>
    </message>
    <message id="ui_serial_none">
        <source></source>
        <translation>aucun branché</translation>
    </message>
    <message id="ui_kind_bluetooth">
        <source></source>
        <translation>Ne demande que l'adaptateur ; appairez-le ici ou dans les réglages du bureau. Vitesse : moyenne, moindre avec Low Energy. En cas d'échec : débranchez-le, rebranchez-le et vérifiez qu'aucun téléphone ne l'occupe.</translation>
    </message>
    <message id="ui_kind_wifi">
        <source></source>
        <translation>Demande que cet ordinateur soit dans le réseau sans fil de l'adaptateur, souvent sans internet. Vitesse : bonne. En cas d'échec : rejoignez ce réseau, vérifiez l'adresse et le port.</translation>
    </message>
    <message id="ui_kind_serial">
        <source></source>
        <translation>Demande un port libre et le droit de l'utiliser. Vitesse : bonne, au plus celle du câble. En cas d'échec : rebranchez le câble ; le message dit qui occupe le port ou quel groupe peut l'utiliser.</translation>
    </message>
    <message id="ui_address">
        <source></source>
        <translation>Ad&amp;resse :</translation>
    </message>
    <message id="ui_port">
        <source></source>
        <translation>Por&amp;t :</translation>
    </message>
    <message id="ui_last_bt">
        <source></source>
        <translation>Réutili&amp;ser le dernier adaptateur</translation>
    </message>
    <message id="ui_last_bt_hint">
        <source></source>
        <translation>Se connecter sans demander au dernier adaptateur choisi</translation>
    </message>
    <message id="ui_units_group">
        <source></source>
        <translation>Unités et enregistrement</translation>
    </message>
    <message id="ui_metric">
        <source></source>
        <translation>Unités &amp;métriques</translation>
    </message>
    <message id="ui_metric_hint">
        <source></source>
        <translation>km/h, °C et kPa au lieu de mph, °F et psi</translation>
    </message>
    <message id="ui_log_runs">
        <source></source>
        <translation>Enre&amp;gistrer les sessions</translation>
    </message>
    <message id="ui_log_runs_hint">
        <source></source>
        <translation>Écrire chaque session de Données en direct dans un fichier</translation>
    </message>
    <message id="ui_language">
        <source></source>
        <translation>&amp;Langue :</translation>
    </message>
    <message id="ui_language_desktop">
        <source></source>
        <translation>Langue de l'environnement de bureau</translation>
    </message>
    <message id="ui_language_hint">
        <source></source>
        <translation>Prend effet au prochain démarrage. Les descriptions des codes et les noms des moniteurs et des paramètres restent en anglais.</translation>
    </message>
    <message id="ui_pids_group">
        <source></source>
        <translation>Paramètres d'une session</translation>
    </message>
    <message id="ui_pids_table">
        <source></source>
        <translation>Paramètres</translation>
    </message>
    <message id="ui_col_show">
        <source></source>
        <translation>Afficher</translation>
    </message>
    <message id="ui_col_parameter">
        <source></source>
        <translation>Paramètre</translation>
    </message>
    <message id="ui_prefs_saved_on_leaving">
        <source></source>
        <translation>Les modifications sont enregistrées quand vous quittez cet écran.</translation>
    </message>
    <message id="ui_defaults">
        <source></source>
        <translation>Valeurs par défa&amp;ut</translation>
    </message>
    <message id="ui_menu_file">
        <source></source>
        <translation>F&amp;ichier</translation>
    </message>
    <message id="ui_menu_export">
        <source></source>
        <translation>&amp;Exporter un journal…</translation>
    </message>
    <message id="ui_menu_quit">
        <source></source>
        <translation>&amp;Quitter</translation>
    </message>
    <message id="ui_export_title">
        <source></source>
        <translation>Exporter un journal</translation>
    </message>
    <message id="ui_export_logs">
        <source></source>
        <translation>&amp;Journaux, du plus récent au plus ancien :</translation>
    </message>
    <message id="ui_export_none">
        <source></source>
        <translation>Il n'y a pas encore de journal. Données en direct en écrit un par session quand « Enregistrer les sessions » est coché dans les préférences.</translation>
    </message>
    <message id="ui_export_log">
        <source></source>
        <translation>Journal</translation>
    </message>
    <message id="ui_export_size">
        <source></source>
        <translation>Taille</translation>
    </message>
    <message id="ui_export_written">
        <source></source>
        <translation>Écrit le</translation>
    </message>
    <message id="ui_export_csv">
        <source></source>
        <translation>Tableau pour un &amp;tableur (.csv)</translation>
    </message>
    <message id="ui_export_txt">
        <source></source>
        <translation>Te&amp;xte (.txt)</translation>
    </message>
    <message id="ui_export_time">
        <source></source>
        <translation>D'abord l'&amp;heure de chaque tour, en secondes</translation>
    </message>
    <message id="ui_export_start">
        <source></source>
        <translation>&amp;Exporter</translation>
    </message>
    <message id="ui_export_open_folder">
        <source></source>
        <translation>&amp;Ouvrir le dossier</translation>
    </message>
    <message id="ui_export_close">
        <source></source>
        <translation>&amp;Fermer</translation>
    </message>
    <message id="ui_export_progress">
        <source></source>
        <translation>Avancement de l'exportation</translation>
    </message>
    <message id="ui_export_done">
        <source></source>
        <translation>%1 lignes exportées vers %2</translation>
    </message>
    <message id="bt_chooser_title">
        <source></source>
        <translation>Choisir un adaptateur Bluetooth</translation>
    </message>
    <message id="bt_chooser_sentence">
        <source></source>
        <translation>Branchez l'adaptateur sur la prise de diagnostic de la voiture, mettez le contact et choisissez-le dans la liste.</translation>
    </message>
    <message id="bt_devices">
        <source></source>
        <translation>Appareils Bluetooth</translation>
    </message>
    <message id="bt_col_name">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="bt_col_address">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="bt_col_paired">
        <source></source>
        <translation>Associé</translation>
    </message>
    <message id="bt_col_signal">
        <source></source>
        <translation>Signal</translation>
    </message>
    <message id="bt_col_serial">
        <source></source>
        <translation>Port série</translation>
    </message>
    <message id="bt_col_kind">
        <source></source>
        <translation>Type</translation>
    </message>
    <message id="bt_classic">
        <source></source>
        <translation>Classique</translation>
    </message>
    <message id="bt_low_energy">
        <source></source>
        <translation>Low Energy</translation>
    </message>
    <message id="bt_both_kinds">
        <source></source>
        <translation>les deux</translation>
    </message>
    <message id="bt_yes">
        <source></source>
        <translation>oui</translation>
    </message>
    <message id="bt_no">
        <source></source>
        <translation>non</translation>
    </message>
    <message id="bt_when_connecting">
        <source></source>
        <translation>pas encore connu</translation>
    </message>
    <message id="bt_searching">
        <source></source>
        <translation>Recherche d'appareils Bluetooth…</translation>
    </message>
    <message id="bt_search_over">
        <source></source>
        <translation>La recherche est terminée. L'adaptateur n'apparaît pas ? Débranchez-le, rebranchez-le, mettez le contact et recherchez de nouveau.</translation>
    </message>
    <message id="bt_none_found">
        <source></source>
        <translation>Aucun appareil Bluetooth n'a été trouvé.

L'adaptateur est-il branché et le contact mis ? Un téléphone y est-il connecté ? Recherchez ensuite de nouveau.</translation>
    </message>
    <message id="bt_connecting">
        <source></source>
        <translation>Connexion à %1… Si l'environnement de bureau demande un code PIN, la plupart des adaptateurs utilisent 1234 ou 0000.</translation>
    </message>
    <message id="bt_search_again">
        <source></source>
        <translation>&amp;Rechercher de nouveau</translation>
    </message>
    <message id="bt_cancel">
        <source></source>
        <translation>&amp;Annuler</translation>
    </message>
    <message id="bt_connect">
        <source></source>
        <translation>&amp;Connecter</translation>
    </message>
    <message id="bt_service_missing">
        <source></source>
        <translation>Le service Bluetooth ne fonctionne pas sur cet ordinateur.

Installez le paquet bluez s'il manque, et démarrez le service :
sudo systemctl enable --now bluetooth</translation>
    </message>
    <message id="bt_no_adapter">
        <source></source>
        <translation>Cet ordinateur n'a pas d'adaptateur Bluetooth en état de marche.

Branchez une clé Bluetooth, ou utilisez un adaptateur de diagnostic Wi-Fi ou à câble.</translation>
    </message>
    <message id="bt_switched_off">
        <source></source>
        <translation>Le Bluetooth est désactivé.

Activez-le dans les paramètres de l'environnement de bureau, ou avec :
bluetoothctl power on</translation>
    </message>
    <message id="bt_not_permitted">
        <source></source>
        <translation>Vous n'avez pas le droit d'utiliser le Bluetooth sur cet ordinateur.

Ouvrez une session sur l'ordinateur même, ou demandez à son administrateur de vous ajouter au groupe bluetooth.</translation>
    </message>
    <message id="bt_in_use">
        <source></source>
        <translation>%1 est utilisé par un autre programme de cet ordinateur. Fermez ce programme et réessayez.</translation>
    </message>
    <message id="bt_out_of_reach">
        <source></source>
        <translation>%1 ne répond pas. L'adaptateur est-il branché, le contact mis, la voiture à portée ?</translation>
    </message>
    <message id="bt_no_serial_port">
        <source></source>
        <translation>%1 n'offre pas de port série : Kestrom ne peut donc pas communiquer avec cet appareil. Choisissez-en un autre.</translation>
    </message>
    <message id="bt_refused">
        <source></source>
        <translation>%1 a refusé la connexion. Un téléphone ou un autre ordinateur l'utilise-t-il ? Débranchez l'adaptateur, rebranchez-le et réessayez.</translation>
    </message>
    <message id="bt_pairing_failed">
        <source></source>
        <translation>L'association avec %1 a échoué. Réessayez et confirmez ce que l'environnement de bureau demande ; la plupart des adaptateurs utilisent le code PIN 1234 ou 0000.</translation>
    </message>
    <message id="bt_other_problem">
        <source></source>
        <translation>La connexion à %1 a échoué. Débranchez l'adaptateur, rebranchez-le et réessayez.</translation>
    </message>
    <message id="bt_no_chooser">
        <source></source>
        <translation>Aucun adaptateur Bluetooth n'est choisi. Indiquez-en un avec --bluetooth ADRESSE (kestrom bluetooth-scan affiche ceux qui sont à portée), un adaptateur Wi-Fi avec --adapter HÔTE:PORT ou un câble avec --adapter /dev/ttyUSB0 ; --demo n'en demande aucun.</translation>
    </message>
    <message id="ui_menu_about">
        <source></source>
        <translation>À &amp;propos de Kestrom</translation>
    </message>
    <message id="ui_about">
        <source></source>
        <translation>Lit le diagnostic embarqué (OBD-II) d'une voiture par un adaptateur de type ELM327 : codes défaut, moniteurs, données en direct, journaux et une console.

Logiciel libre sous licence MIT.
© 2026 The Kestrom developers</translation>
    </message>
    <message id="ui_about_close">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="ui_run_log">
        <source></source>
        <translation>Paramètres choisis</translation>
    </message>
    <message id="ui_run_fuel">
        <source></source>
        <translation>Consommation</translation>
    </message>
    <message id="ui_run_sensors">
        <source></source>
        <translation>Sondes à oxygène</translation>
    </message>
    <message id="ui_run_boost">
        <source></source>
        <translation>Suralimentation</translation>
    </message>
    <message id="ui_unread">
        <source></source>
        <translation>Une partie de ce que la voiture a envoyé n'a pas pu être lue : %1. Des codes défaut peuvent manquer ; relancez la lecture.</translation>
    </message>
    <message id="unread_adapter_notice">
        <source></source>
        <translation>l'adaptateur a signalé %1</translation>
    </message>
    <message id="unread_damaged_line">
        <source></source>
        <translation>une ligne endommagée</translation>
    </message>
    <message id="unread_not_understood">
        <source></source>
        <translation>une ligne qui n'est pas une réponse</translation>
    </message>
    <message id="unread_broken_off">
        <source></source>
        <translation>une réponse interrompue</translation>
    </message>
    <message id="unread_too_long">
        <source></source>
        <translation>une réponse suivie de données étrangères</translation>
    </message>
    <message id="unread_frames_unclear">
        <source></source>
        <translation>des trames qui ne s'assemblent pas</translation>
    </message>
    <message id="unread_refused">
        <source></source>
        <translation>un calculateur a refusé la requête (%1)</translation>
    </message>
    <message id="unread_no_answer">
        <source></source>
        <translation>la voiture n'a pas répondu</translation>
    </message>
    <message id="unread_silent_unit">
        <source></source>
        <translation>un calculateur n'a pas répondu (%1)</translation>
    </message>
    <message id="unread_left_out">
        <source></source>
        <translation>la voiture a aussi envoyé %1, que la liste omet</translation>
    </message>
    <message id="ui_more_button">
        <source></source>
        <translation>Autres…</translation>
    </message>
    <message id="ui_more_hint">
        <source></source>
        <translation>Choisir ce qui est demandé en plus des paramètres des préférences</translation>
    </message>
    <message id="ui_more_title">
        <source></source>
        <translation>Autres paramètres</translation>
    </message>
    <message id="ui_more_search">
        <source></source>
        <translation>Chercher par nom ou PID</translation>
    </message>
    <message id="ui_more_name">
        <source></source>
        <translation>Paramètre</translation>
    </message>
    <message id="ui_more_unit">
        <source></source>
        <translation>Unité</translation>
    </message>
    <message id="ui_more_support">
        <source></source>
        <translation>Cette voiture</translation>
    </message>
    <message id="ui_more_yes">
        <source></source>
        <translation>pris en charge</translation>
    </message>
    <message id="ui_more_no">
        <source></source>
        <translation>non pris en charge</translation>
    </message>
    <message id="ui_more_in_prefs">
        <source></source>
        <translation>Choisi dans les préférences</translation>
    </message>
    <message id="ui_more_ask">
        <source></source>
        <translation>&amp;Interroger la voiture</translation>
    </message>
    <message id="ui_more_use">
        <source></source>
        <translation>&amp;Utiliser</translation>
    </message>
    <message id="ui_more_cancel">
        <source></source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message id="ui_more_unknown">
        <source></source>
        <translation>On ne sait pas encore quels paramètres cette voiture prend en charge.</translation>
    </message>
    <message id="ui_more_asking">
        <source></source>
        <translation>Interrogation de la voiture sur ses paramètres</translation>
    </message>
    <message id="ui_more_told">
        <source></source>
        <translation>La voiture a indiqué les paramètres qu'elle prend en charge</translation>
    </message>
    <message id="ui_more_untold">
        <source></source>
        <translation>La voiture n'a pas indiqué les paramètres qu'elle prend en charge</translation>
    </message>
    <message id="ui_more_known">
        <source></source>
        <translation>Cette voiture prend en charge %d paramètres.</translation>
    </message>
    <message id="ui_menu_lookup">
        <source></source>
        <translation>&amp;Chercher un code…</translation>
    </message>
    <message id="ui_lookup_title">
        <source></source>
        <translation>Chercher un code</translation>
    </message>
    <message id="ui_lookup_search">
        <source></source>
        <translation>Code ou mots de la description (en anglais)</translation>
    </message>
    <message id="ui_lookup_none">
        <source></source>
        <translation>Rien trouvé</translation>
    </message>
    <message id="ui_lookup_found">
        <source></source>
        <translation>Trouvés : %d</translation>
    </message>
    <message id="ui_lookup_close">
        <source></source>
        <translation>&amp;Fermer</translation>
    </message>
    <message id="report_title">
        <source></source>
        <translation>Rapport du véhicule</translation>
    </message>
    <message id="report_compare_title">
        <source></source>
        <translation>Comparaison de deux rapports</translation>
    </message>
    <message id="report_plate">
        <source></source>
        <translation>Immatriculation</translation>
    </message>
    <message id="report_owner">
        <source></source>
        <translation>Propriétaire</translation>
    </message>
    <message id="report_odometer">
        <source></source>
        <translation>Compteur relevé à la main</translation>
    </message>
    <message id="report_signature">
        <source></source>
        <translation>Date, signature</translation>
    </message>
    <message id="report_page">
        <source></source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message id="report_foot">
        <source></source>
        <translation>Lu par l'OBD générique : moteur et émissions seulement ; ni airbags, ni freins, ni carrosserie.</translation>
    </message>
    <message id="report_fact_lamp">
        <source></source>
        <translation>Voyant moteur (MIL)</translation>
    </message>
    <message id="report_fact_codes">
        <source></source>
        <translation>Codes d'anomalie</translation>
    </message>
    <message id="report_fact_readiness">
        <source></source>
        <translation>Contrôles (readiness)</translation>
    </message>
    <message id="report_on">
        <source></source>
        <translation>ALLUMÉ</translation>
    </message>
    <message id="report_off">
        <source></source>
        <translation>éteint</translation>
    </message>
    <message id="report_counts">
        <source></source>
        <translation>Mémorisés : %1 ; en attente : %2 ; permanents : %3</translation>
    </message>
    <message id="report_at_least">
        <source></source>
        <translation>au moins %1</translation>
    </message>
    <message id="report_ready">
        <source></source>
        <translation>%1 sur %2 terminés</translation>
    </message>
    <message id="report_not_told">
        <source></source>
        <translation>non communiqué</translation>
    </message>
    <message id="report_refused">
        <source></source>
        <translation>refusé (%1)</translation>
    </message>
    <message id="report_unread">
        <source></source>
        <translation>illisible</translation>
    </message>
    <message id="report_not_asked">
        <source></source>
        <translation>non demandé</translation>
    </message>
    <message id="report_none">
        <source></source>
        <translation>aucun</translation>
    </message>
    <message id="report_section_vehicle">
        <source></source>
        <translation>Véhicule</translation>
    </message>
    <message id="report_section_readings">
        <source></source>
        <translation>Au moment de la lecture</translation>
    </message>
    <message id="report_section_adapter">
        <source></source>
        <translation>Adaptateur et bus</translation>
    </message>
    <message id="report_section_units">
        <source></source>
        <translation>Calculateurs</translation>
    </message>
    <message id="report_section_codes">
        <source></source>
        <translation>Codes d'anomalie</translation>
    </message>
    <message id="report_section_frames">
        <source></source>
        <translation>Données figées</translation>
    </message>
    <message id="report_section_readiness">
        <source></source>
        <translation>Contrôles (readiness)</translation>
    </message>
    <message id="report_section_cleared">
        <source></source>
        <translation>Depuis l'effacement des codes</translation>
    </message>
    <message id="report_section_tests">
        <source></source>
        <translation>Résultats des tests</translation>
    </message>
    <message id="report_section_counters">
        <source></source>
        <translation>Compteurs en service</translation>
    </message>
    <message id="report_section_unread">
        <source></source>
        <translation>Ce qui n'a pas été lu, et pourquoi</translation>
    </message>
    <message id="report_section_changes">
        <source></source>
        <translation>Ce qui est apparu et disparu</translation>
    </message>
    <message id="report_vin">
        <source></source>
        <translation>Numéro d'identification (VIN)</translation>
    </message>
    <message id="report_vin_odd">
        <source></source>
        <translation>%1 (numéro non conforme à la norme : %2)</translation>
    </message>
    <message id="report_vins_differ">
        <source></source>
        <translation>Les calculateurs donnent des numéros différents : %1</translation>
    </message>
    <message id="report_read_at">
        <source></source>
        <translation>Lu le</translation>
    </message>
    <message id="report_seconds">
        <source></source>
        <translation>Durée</translation>
    </message>
    <message id="report_volts">
        <source></source>
        <translation>Batterie, selon l'adaptateur</translation>
    </message>
    <message id="report_engine_running">
        <source></source>
        <translation>Moteur en marche</translation>
    </message>
    <message id="report_yes">
        <source></source>
        <translation>oui</translation>
    </message>
    <message id="report_no">
        <source></source>
        <translation>non</translation>
    </message>
    <message id="report_adapter">
        <source></source>
        <translation>Adaptateur</translation>
    </message>
    <message id="report_protocol">
        <source></source>
        <translation>Protocole</translation>
    </message>
    <message id="report_answered">
        <source></source>
        <translation>Calculateurs ayant répondu</translation>
    </message>
    <message id="report_col_unit">
        <source></source>
        <translation>Calculateur</translation>
    </message>
    <message id="report_col_address">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="report_col_name">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="report_col_calibration">
        <source></source>
        <translation>Calibration</translation>
    </message>
    <message id="report_col_verification">
        <source></source>
        <translation>Numéro de vérification (CVN)</translation>
    </message>
    <message id="report_col_code">
        <source></source>
        <translation>Code</translation>
    </message>
    <message id="report_col_meaning">
        <source></source>
        <translation>Signification</translation>
    </message>
    <message id="report_col_stored">
        <source></source>
        <translation>Mémorisé</translation>
    </message>
    <message id="report_col_pending">
        <source></source>
        <translation>En attente</translation>
    </message>
    <message id="report_col_permanent">
        <source></source>
        <translation>Permanent</translation>
    </message>
    <message id="report_col_frame">
        <source></source>
        <translation>Figé</translation>
    </message>
    <message id="report_col_value">
        <source></source>
        <translation>Valeur</translation>
    </message>
    <message id="report_col_monitor">
        <source></source>
        <translation>Contrôle</translation>
    </message>
    <message id="report_col_state">
        <source></source>
        <translation>État</translation>
    </message>
    <message id="report_col_drive">
        <source></source>
        <translation>Ce trajet</translation>
    </message>
    <message id="report_col_test">
        <source></source>
        <translation>Test</translation>
    </message>
    <message id="report_col_lowest">
        <source></source>
        <translation>Min.</translation>
    </message>
    <message id="report_col_highest">
        <source></source>
        <translation>Max.</translation>
    </message>
    <message id="report_col_result">
        <source></source>
        <translation>Résultat</translation>
    </message>
    <message id="report_col_near">
        <source></source>
        <translation>Chemin vers la limite</translation>
    </message>
    <message id="report_col_done">
        <source></source>
        <translation>Effectués</translation>
    </message>
    <message id="report_col_conditions">
        <source></source>
        <translation>Conditions remplies</translation>
    </message>
    <message id="report_col_ratio">
        <source></source>
        <translation>Rapport</translation>
    </message>
    <message id="report_col_what">
        <source></source>
        <translation>Quoi</translation>
    </message>
    <message id="report_col_why">
        <source></source>
        <translation>Pourquoi</translation>
    </message>
    <message id="report_col_before">
        <source></source>
        <translation>Avant</translation>
    </message>
    <message id="report_col_after">
        <source></source>
        <translation>Après</translation>
    </message>
    <message id="report_complete">
        <source></source>
        <translation>terminé</translation>
    </message>
    <message id="report_not_complete">
        <source></source>
        <translation>non terminé</translation>
    </message>
    <message id="report_not_supported">
        <source></source>
        <translation>Non pris en charge : %1</translation>
    </message>
    <message id="report_spark">
        <source></source>
        <translation>contrôles moteur essence</translation>
    </message>
    <message id="report_compression">
        <source></source>
        <translation>contrôles moteur diesel</translation>
    </message>
    <message id="report_failed">
        <source></source>
        <translation>ÉCHEC</translation>
    </message>
    <message id="report_passed">
        <source></source>
        <translation>réussi</translation>
    </message>
    <message id="report_no_result">
        <source></source>
        <translation>pas encore de résultat</translation>
    </message>
    <message id="report_legend">
        <source></source>
        <translation>En attente : vu lors de ce trajet ou du dernier. Mémorisé : confirmé. Permanent : reste après l'effacement jusqu'à ce que le test réussisse.</translation>
    </message>
    <message id="report_mismatch">
        <source></source>
        <translation>%1 : l'état compte %2 codes mémorisés, la liste en contient %3.</translation>
    </message>
    <message id="report_cylinders">
        <source></source>
        <translation>Les cylindres sont numérotés comme le calculateur les compte.</translation>
    </message>
    <message id="report_no_o2_tests">
        <source></source>
        <translation>Avant le CAN, les tests de sondes O2 du service 05 ne sont pas lus.</translation>
    </message>
    <message id="report_unknown_code">
        <source></source>
        <translation>absent de la liste des codes</translation>
    </message>
    <message id="report_why_not_listed">
        <source></source>
        <translation>ce calculateur ne le propose pas</translation>
    </message>
    <message id="report_why_listed">
        <source></source>
        <translation>pas de réponse, bien que le calculateur le propose</translation>
    </message>
    <message id="report_why_no_answer">
        <source></source>
        <translation>pas de réponse</translation>
    </message>
    <message id="report_why_time_out">
        <source></source>
        <translation>pas de réponse à temps</translation>
    </message>
    <message id="report_why_incomplete">
        <source></source>
        <translation>des parties de la réponse manquent</translation>
    </message>
    <message id="report_why_ended">
        <source></source>
        <translation>la lecture était terminée</translation>
    </message>
    <message id="report_partly">
        <source></source>
        <translation>une partie n'a pas pu être lue</translation>
    </message>
    <message id="report_request">
        <source></source>
        <translation>requête %1</translation>
    </message>
    <message id="report_end_cancelled">
        <source></source>
        <translation>La lecture a été interrompue : voici ce qui avait été lu jusque-là.</translation>
    </message>
    <message id="report_end_time_up">
        <source></source>
        <translation>La lecture a duré trop longtemps et a été arrêtée : voici ce qui avait été lu jusque-là.</translation>
    </message>
    <message id="report_end_adapter_silent">
        <source></source>
        <translation>L'adaptateur s'est tu : voici ce qui avait été lu jusque-là.</translation>
    </message>
    <message id="report_end_link_lost">
        <source></source>
        <translation>La connexion a été coupée : voici ce qui avait été lu jusque-là.</translation>
    </message>
    <message id="report_part_status">
        <source></source>
        <translation>Voyant et contrôles</translation>
    </message>
    <message id="report_part_this_drive">
        <source></source>
        <translation>Contrôles de ce trajet</translation>
    </message>
    <message id="report_part_stored">
        <source></source>
        <translation>Codes mémorisés</translation>
    </message>
    <message id="report_part_pending">
        <source></source>
        <translation>Codes en attente</translation>
    </message>
    <message id="report_part_permanent">
        <source></source>
        <translation>Codes permanents</translation>
    </message>
    <message id="report_part_frame">
        <source></source>
        <translation>Données figées</translation>
    </message>
    <message id="report_part_vin">
        <source></source>
        <translation>VIN</translation>
    </message>
    <message id="report_part_unit_name">
        <source></source>
        <translation>Nom du calculateur</translation>
    </message>
    <message id="report_part_calibrations">
        <source></source>
        <translation>Calibrations</translation>
    </message>
    <message id="report_part_verification_numbers">
        <source></source>
        <translation>Numéros de vérification</translation>
    </message>
    <message id="report_part_counters">
        <source></source>
        <translation>Compteurs en service</translation>
    </message>
    <message id="report_part_tests">
        <source></source>
        <translation>Résultats des tests</translation>
    </message>
    <message id="report_nothing_unread">
        <source></source>
        <translation>Tout ce qui a été demandé a été communiqué.</translation>
    </message>
    <message id="report_other_car">
        <source></source>
        <translation>Ces rapports concernent deux voitures différentes : %1 et %2.</translation>
    </message>
    <message id="report_no_changes">
        <source></source>
        <translation>Rien de ce que donnent les deux rapports n'a changé.</translation>
    </message>
    <message id="ui_rail_report">
        <source></source>
        <translation>Rapport</translation>
    </message>
    <message id="ui_report_title">
        <source></source>
        <translation>Rapport du véhicule</translation>
    </message>
    <message id="ui_report_read">
        <source></source>
        <translation>&amp;Lire le rapport</translation>
    </message>
    <message id="ui_report_cancel">
        <source></source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message id="ui_report_save">
        <source></source>
        <translation>Enregi&amp;strer sous…</translation>
    </message>
    <message id="ui_report_print">
        <source></source>
        <translation>Impressio&amp;n…</translation>
    </message>
    <message id="ui_report_copy">
        <source></source>
        <translation>C&amp;opier</translation>
    </message>
    <message id="ui_report_open">
        <source></source>
        <translation>Ou&amp;vrir…</translation>
    </message>
    <message id="ui_report_compare">
        <source></source>
        <translation>Co&amp;mparer…</translation>
    </message>
    <message id="ui_report_hide_vin">
        <source></source>
        <translation>Mas&amp;quer la fin du VIN</translation>
    </message>
    <message id="ui_report_hide_vin_hint">
        <source></source>
        <translation>Ses six derniers caractères sont masqués : sur la feuille et dans ce qui est enregistré, imprimé ou copié.</translation>
    </message>
    <message id="ui_report_empty">
        <source></source>
        <translation>Appuyez sur Lire le rapport : chaque calculateur est interrogé sur ses codes, données figées, contrôles, résultats de tests et identité.</translation>
    </message>
    <message id="ui_report_save_title">
        <source></source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message id="ui_report_open_title">
        <source></source>
        <translation>Ouvrir un rapport</translation>
    </message>
    <message id="ui_report_compare_title">
        <source></source>
        <translation>Rapport antérieur à comparer</translation>
    </message>
    <message id="ui_report_not_saved">
        <source></source>
        <translation>Le rapport n'a pas été enregistré.</translation>
    </message>
    <message id="ui_report_saved">
        <source></source>
        <translation>Enregistré : %1</translation>
    </message>
    <message id="ui_report_copied">
        <source></source>
        <translation>Le rapport est dans le presse-papiers.</translation>
    </message>
    <message id="ui_report_not_opened">
        <source></source>
        <translation>Ce fichier ne peut pas être ouvert comme rapport.</translation>
    </message>
    <message id="report_starting">
        <source></source>
        <translation>Préparation de l'adaptateur</translation>
    </message>
    <message id="report_progress">
        <source></source>
        <translation>Lecture : %1 (%2 sur %3)</translation>
    </message>
    <message id="report_topic_adapter">
        <source></source>
        <translation>ce que dit l'adaptateur</translation>
    </message>
    <message id="report_topic_supported">
        <source></source>
        <translation>ce que proposent les calculateurs</translation>
    </message>
    <message id="report_topic_status">
        <source></source>
        <translation>voyant et contrôles</translation>
    </message>
    <message id="report_topic_codes">
        <source></source>
        <translation>codes d'anomalie</translation>
    </message>
    <message id="report_topic_readings">
        <source></source>
        <translation>valeurs</translation>
    </message>
    <message id="report_topic_frames">
        <source></source>
        <translation>données figées</translation>
    </message>
    <message id="report_topic_identity">
        <source></source>
        <translation>identité</translation>
    </message>
    <message id="report_topic_tests">
        <source></source>
        <translation>résultats des tests</translation>
    </message>
    <message id="report_done">
        <source></source>
        <translation>Le rapport est complet.</translation>
    </message>
    <message id="report_done_partly">
        <source></source>
        <translation>Le rapport est lu. Ce qui n'a pas été communiqué figure à la fin.</translation>
    </message>
    <message id="report_nothing_told">
        <source></source>
        <translation>La voiture n'a rien communiqué.</translation>
    </message>
    <message id="report_cancelled">
        <source></source>
        <translation>La lecture a été annulée.</translation>
    </message>
    <message id="ui_copy_rows">
        <source></source>
        <translation>&amp;Copier les lignes</translation>
    </message>
    <message id="ui_codes_to_report">
        <source></source>
        <translation>&amp;Enregistrer ou imprimer : rapport du véhicule</translation>
    </message>
    <message id="ui_report_offer">
        <source></source>
        <translation>Proposer avant l'e&amp;ffacement</translation>
    </message>
    <message id="ui_report_offer_hint">
        <source></source>
        <translation>Avant d'effacer les codes, un rapport lu et non enregistré est proposé.</translation>
    </message>
    <message id="ui_report_before_clear">
        <source></source>
        <translation>Enregistrer le rapport avant d'effacer ?</translation>
    </message>
    <message id="ui_report_before_clear_hint">
        <source></source>
        <translation>L'effacement supprime aussi les données figées et les résultats des tests. Le rapport lu les contient.</translation>
    </message>
    <message id="ui_report_go_on">
        <source></source>
        <translation>Continuer sans enregistrer</translation>
    </message>
    <message id="report_none_so_far">
        <source></source>
        <translation>aucun, pour autant que communiqué</translation>
    </message>
    <message id="ui_report_save_first">
        <source></source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message id="ui_report_text_file">
        <source></source>
        <translation>Texte</translation>
    </message>
    <message id="report_off_so_far">
        <source></source>
        <translation>éteint, pour autant que communiqué</translation>
    </message>
    <message id="report_why_put_off">
        <source></source>
        <translation>le calculateur a demandé d’attendre et n’a pas répondu à temps</translation>
    </message>
    <message id="ui_report_opened">
        <source></source>
        <translation>Ouvert : %1</translation>
    </message>
    <message id="ui_code_from">
        <source></source>
        <translation>Du calculateur : %1</translation>
    </message>
    <message id="report_name_Misfire">
        <source></source>
        <translation>Ratés d’allumage</translation>
    </message>
    <message id="report_name_Fuel system">
        <source></source>
        <translation>Système d’alimentation</translation>
    </message>
    <message id="report_name_Comprehensive components">
        <source></source>
        <translation>Composants divers</translation>
    </message>
    <message id="report_name_Catalyst">
        <source></source>
        <translation>Catalyseur</translation>
    </message>
    <message id="report_name_Heated catalyst">
        <source></source>
        <translation>Catalyseur chauffé</translation>
    </message>
    <message id="report_name_Evaporative system">
        <source></source>
        <translation>Système d’évaporation</translation>
    </message>
    <message id="report_name_Secondary air system">
        <source></source>
        <translation>Air secondaire</translation>
    </message>
    <message id="report_name_A/C refrigerant / petrol particulate filter">
        <source></source>
        <translation>Réfrigérant / filtre à particules essence</translation>
    </message>
    <message id="report_name_O2 sensor">
        <source></source>
        <translation>Sonde à oxygène</translation>
    </message>
    <message id="report_name_O2 sensor heater">
        <source></source>
        <translation>Chauffage de la sonde à oxygène</translation>
    </message>
    <message id="report_name_EGR/VVT system">
        <source></source>
        <translation>Système EGR/VVT</translation>
    </message>
    <message id="report_name_NMHC catalyst">
        <source></source>
        <translation>Catalyseur NMHC</translation>
    </message>
    <message id="report_name_NOx/SCR aftertreatment">
        <source></source>
        <translation>Post-traitement NOx/SCR</translation>
    </message>
    <message id="report_name_Boost pressure">
        <source></source>
        <translation>Pression de suralimentation</translation>
    </message>
    <message id="report_name_Exhaust gas sensor">
        <source></source>
        <translation>Capteur de gaz d’échappement</translation>
    </message>
    <message id="report_name_Particulate filter">
        <source></source>
        <translation>Filtre à particules</translation>
    </message>
    <message id="report_name_OBD monitoring conditions met">
        <source></source>
        <translation>Conditions de surveillance OBD réunies</translation>
    </message>
    <message id="report_name_Ignition cycles">
        <source></source>
        <translation>Cycles d’allumage</translation>
    </message>
    <message id="report_name_Catalyst, bank 1">
        <source></source>
        <translation>Catalyseur, rangée 1</translation>
    </message>
    <message id="report_name_Catalyst, bank 2">
        <source></source>
        <translation>Catalyseur, rangée 2</translation>
    </message>
    <message id="report_name_O2 sensor, bank 1">
        <source></source>
        <translation>Sonde à oxygène, rangée 1</translation>
    </message>
    <message id="report_name_O2 sensor, bank 2">
        <source></source>
        <translation>Sonde à oxygène, rangée 2</translation>
    </message>
    <message id="report_name_Secondary O2 sensor, bank 1">
        <source></source>
        <translation>Seconde sonde à oxygène, rangée 1</translation>
    </message>
    <message id="report_name_Secondary O2 sensor, bank 2">
        <source></source>
        <translation>Seconde sonde à oxygène, rangée 2</translation>
    </message>
    <message id="report_name_NOx catalyst">
        <source></source>
        <translation>Catalyseur NOx</translation>
    </message>
    <message id="report_name_NOx adsorber">
        <source></source>
        <translation>Adsorbeur NOx</translation>
    </message>
</context>
</TS>
