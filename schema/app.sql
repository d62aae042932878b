-- The application database, named as the main one with _app behind it: settings, logins and texts.

CREATE TABLE global_setting (
  param_id    varchar(100) NOT NULL,
  param_value text,
  PRIMARY KEY (param_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE user_login (
  login_id       varchar(50) NOT NULL,
  login_pwd      varchar(32),
  group_id_auto  smallint,
  payroll_module smallint,
  PRIMARY KEY (login_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- One column per language; another language is another column of the same name in both tables.
CREATE TABLE change_lang (
  com_form  varchar(100) NOT NULL,
  com_name  varchar(100) NOT NULL,
  no_index  int NOT NULL DEFAULT -1,
  indonesia varchar(500),
  english   varchar(500),
  PRIMARY KEY (com_form, com_name, no_index)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE tvk_message (
  message_id varchar(100) NOT NULL,
  com_form   varchar(100) NOT NULL,
  indonesia  varchar(1000),
  english    varchar(1000),
  PRIMARY KEY (message_id, com_form)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;
